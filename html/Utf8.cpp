#include "html/Utf8.hpp"

namespace brindle::html {

namespace {

constexpr char continuation(char32_t bits) noexcept {
    return static_cast<char>(0x80 | (bits & 0x3F));
}

constexpr std::uint8_t sequenceLength(unsigned char lead) noexcept {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

} // namespace

void appendUtf8(std::string& text, char32_t codePoint) {
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | (codePoint >> 6));
        text += continuation(codePoint);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0 | (codePoint >> 12));
        text += continuation(codePoint >> 6);
        text += continuation(codePoint);
    } else {
        text += static_cast<char>(0xF0 | (codePoint >> 18));
        text += continuation(codePoint >> 12);
        text += continuation(codePoint >> 6);
        text += continuation(codePoint);
    }
}

DecodedCodePoint decodeUtf8(std::string_view text) noexcept {
    constexpr DecodedCodePoint malformed{0xFFFD, 1};
    constexpr char32_t leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text.front());
    const std::uint8_t length = sequenceLength(lead);
    if (length == 0 || length > text.size()) {
        return malformed;
    }
    char32_t value = lead & leadBits[length];
    for (std::size_t index = 1; index < length; ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        if ((byte & 0xC0) != 0x80) {
            return malformed;
        }
        value = (value << 6) | (byte & 0x3F);
    }
    if (value < smallest[length] || value > 0x10FFFF) {
        return malformed;
    }
    return {value, length};
}

} // namespace brindle::html
