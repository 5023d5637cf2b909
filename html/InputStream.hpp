#pragma once

#include <string>

#include "html/ParseErrorList.hpp"

namespace brindle::html {

/// The text of one parse after the preprocessing of the HTML standard (section 13.2.3.5): a byte order mark at the start is gone,
/// CR LF and lone CR are line feeds. The text is UTF-8; malformed sequences are passed on as they are.
class InputStream {
public:
    explicit InputStream(std::string text);

    const std::string& text() const noexcept { return _text; }

    /// Reports each control character, noncharacter and surrogate of the text, until the list is full.
    void reportErrors(ParseErrorList& errors) const;

private:
    std::string _text;
};

/// Whether the standard calls it a noncharacter: U+FDD0 to U+FDEF, and the last two of each plane.
constexpr bool isNoncharacter(char32_t codePoint) noexcept {
    return (codePoint >= 0xFDD0 && codePoint <= 0xFDEF) || (codePoint & 0xFFFE) == 0xFFFE;
}

/// Whether the standard calls it a control: C0 controls and U+007F to U+009F.
constexpr bool isControl(char32_t codePoint) noexcept {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F);
}

constexpr bool isSurrogate(char32_t codePoint) noexcept {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

} // namespace brindle::html
