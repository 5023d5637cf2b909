#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The little of UTF-8 that the toolkit needs. Safe on every thread.
namespace brindle::html {

/// U+FFFD as UTF-8.
inline constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

/// Appends `codePoint` (0 to 0x10FFFF) to `text`. Surrogates are written as three bytes like any other number of their size.
void appendUtf8(std::string& text, char32_t codePoint);

/// A code point read from a text, with the number of bytes that it took.
struct DecodedCodePoint {
    char32_t value = 0;
    std::uint8_t length = 1;
};

/// Reads the code point at the start of `text`, which must not be empty. A malformed sequence reads as one byte of value U+FFFD;
/// surrogates written as three bytes are given as they are.
DecodedCodePoint decodeUtf8(std::string_view text) noexcept;

} // namespace brindle::html
