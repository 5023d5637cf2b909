#include "html/XmlName.hpp"

#include <algorithm>
#include <array>
#include <iterator>

#include "html/AsciiText.hpp"
#include "html/Utf8.hpp"

namespace brindle::html {

namespace {

struct CodePointRange {
    char32_t first;
    char32_t last;
};

constexpr CodePointRange startRanges[] = {{0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2FF}, {0x370, 0x37D}, {0x37F, 0x1FFF}, {0x200C, 0x200D},
    {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
constexpr CodePointRange furtherRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t count>
bool isWithin(const CodePointRange (&ranges)[count], char32_t value) noexcept {
    return std::any_of(
        std::begin(ranges), std::end(ranges), [=](CodePointRange range) { return value >= range.first && value <= range.last; });
}

constexpr auto asciiNameBytes = [] {
    std::array<bool, 256> table{};
    for (const char byte : std::string_view("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_:-.")) {
        table[static_cast<unsigned char>(byte)] = true;
    }
    return table;
}();

/// Nearly every name of a feed is one.
bool isAsciiName(std::string_view text) noexcept {
    return !text.empty() && text.front() > '9' &&
           std::all_of(text.begin(), text.end(), [](char byte) { return asciiNameBytes[static_cast<unsigned char>(byte)]; });
}

bool isNameStart(char32_t value) noexcept {
    if (value < 0x80) {
        const char ascii = static_cast<char>(value);
        return isAsciiAlpha(ascii) || ascii == '_' || ascii == ':';
    }
    return isWithin(startRanges, value);
}

bool isNameCharacter(char32_t value) noexcept {
    if (value < 0x80) {
        const char ascii = static_cast<char>(value);
        return isAsciiAlphanumeric(ascii) || ascii == '_' || ascii == ':' || ascii == '-' || ascii == '.';
    }
    return isNameStart(value) || isWithin(furtherRanges, value);
}

} // namespace

bool isXmlName(std::string_view text) noexcept {
    if (isAsciiName(text)) {
        return true;
    }
    bool isFirst = true;
    for (std::size_t at = 0; at < text.size(); isFirst = false) {
        const DecodedCodePoint decoded = decodeUtf8(text.substr(at));
        const bool isMalformed = decoded.length == 1 && decoded.value >= 0x80;
        if (isMalformed || (isFirst ? !isNameStart(decoded.value) : !isNameCharacter(decoded.value))) {
            return false;
        }
        at += decoded.length;
    }
    return !isFirst;
}

} // namespace brindle::html
