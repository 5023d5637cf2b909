#include "tests/support/Folders.hpp"

namespace brindle::testsupport {

std::string sourceFolder() {
    return BRINDLE_SOURCE_DIR;
}

std::string buildFolder() {
    return BRINDLE_BINARY_DIR;
}

} // namespace brindle::testsupport
