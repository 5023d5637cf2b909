#include "foundation/FormattedText.hpp"

#include <cstddef>

namespace brindle {

std::string formatted(std::string_view format, const std::vector<std::string>& values) {
    std::string text;
    std::size_t used = 0;
    for (std::size_t at = 0; at < format.size(); ++at) {
        const std::string_view place = format.substr(at, 2);
        if ((place == "%@" || place == "%d") && used < values.size()) {
            text += values[used++];
            ++at;
        } else {
            text += format[at];
        }
    }
    return text;
}

} // namespace brindle
