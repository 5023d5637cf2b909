#include "foundation/FatalError.hpp"

#include <cstdio>
#include <cstdlib>

namespace brindle {

void fatalError(std::string_view message) {
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::fflush(stderr);
    std::abort();
}

} // namespace brindle
