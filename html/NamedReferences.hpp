#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// The named character references of the HTML standard (section 13.5). The table is constant data. Safe on every thread.
namespace brindle::html {

/// The text that `&name;` stands for, as UTF-8; nothing for a name that the standard does not know.
/// The name is case-sensitive and given without its ampersand and semicolon: "nbsp".
std::optional<std::string_view> namedReference(std::string_view nameWithoutAmpersandAndSemicolon) noexcept;

/// What the longest known name at the start of a text stands for.
struct NamedReferenceMatch {
    std::string_view value;
    std::size_t length = 0; ///< Bytes of the name, its semicolon counted; 0 for no match.
};

/// Matches the longest name that `text`, which begins behind an ampersand, starts with. Some names match without their semicolon.
NamedReferenceMatch longestNamedReference(std::string_view text) noexcept;

} // namespace brindle::html
