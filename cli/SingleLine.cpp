#include "cli/SingleLine.hpp"

#include <cstddef>

namespace brindle {

std::string singleLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        const bool isC1 = byte == 0xC2 && next >= 0x80 && next <= 0x9F;
        line += byte < 0x20 || byte == 0x7F || isC1 ? ' ' : text[i];
        if (isC1)
            ++i;
    }
    return line;
}

} // namespace brindle
