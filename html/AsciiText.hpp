#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Character classes of the HTML standard ("ASCII whitespace", "ASCII alpha" and so on), free of any locale.
/// Every function takes single bytes of UTF-8; bytes outside ASCII belong to no class. Safe on every thread.
namespace brindle::html {

/// Tab, line feed, form feed, carriage return and blank.
constexpr bool isAsciiWhitespace(char c) noexcept {
    return c == ' ' || c == '\n' || c == '\t' || c == '\r' || c == '\f';
}

constexpr bool isAsciiUpper(char c) noexcept {
    return c >= 'A' && c <= 'Z';
}

constexpr char toAsciiLower(char c) noexcept {
    return isAsciiUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
}

constexpr bool isAsciiDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

constexpr bool isAsciiAlpha(char c) noexcept {
    const char lower = toAsciiLower(c);
    return lower >= 'a' && lower <= 'z';
}

constexpr bool isAsciiAlphanumeric(char c) noexcept {
    return isAsciiAlpha(c) || isAsciiDigit(c);
}

inline bool isBlank(std::string_view text) noexcept {
    return std::all_of(text.begin(), text.end(), [](char c) { return isAsciiWhitespace(c); });
}

inline std::string asciiLowercased(std::string_view text) {
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(), [](char c) { return toAsciiLower(c); });
    return lowered;
}

/// Whether `text` is `lowered` (which is in lower case already) but for ASCII case.
inline bool equalsIgnoringAsciiCase(std::string_view text, std::string_view lowered) noexcept {
    return std::equal(text.begin(), text.end(), lowered.begin(), lowered.end(), [](char a, char b) { return toAsciiLower(a) == b; });
}

} // namespace brindle::html
