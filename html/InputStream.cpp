#include "html/InputStream.hpp"

#include <cstring>
#include <string_view>
#include <utility>

#include "html/AsciiText.hpp"
#include "html/Utf8.hpp"

namespace brindle::html {

namespace {

void dropByteOrderMark(std::string& text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) {
        text.erase(0, mark.size());
    }
}

/// Works within the text itself: it only shrinks, and most texts hold no carriage return at all.
void normaliseNewLines(std::string& text) {
    const std::size_t first = text.find('\r');
    if (first == std::string::npos) {
        return;
    }
    char* const start = text.data();
    const char* const end = start + text.size();
    const char* from = start + first;
    char* to = start + first;
    while (from != end) {
        *to++ = '\n';
        from += from + 1 != end && from[1] == '\n' ? 2 : 1;
        const void* const found = std::memchr(from, '\r', static_cast<std::size_t>(end - from));
        const char* const next = found != nullptr ? static_cast<const char*>(found) : end;
        const auto length = static_cast<std::size_t>(next - from);
        std::memmove(to, from, length);
        to += length;
        from = next;
    }
    text.resize(static_cast<std::size_t>(to - start));
}

} // namespace

InputStream::InputStream(std::string text) : _text(std::move(text)) {
    dropByteOrderMark(_text);
    normaliseNewLines(_text);
}

void InputStream::reportErrors(ParseErrorList& errors) const {
    for (std::size_t at = 0; at < _text.size() && !errors.isFull();) {
        const DecodedCodePoint decoded = decodeUtf8(std::string_view(_text).substr(at));
        const char32_t value = decoded.value;
        if (isSurrogate(value)) {
            errors.report(ParseErrorCode::surrogateInInputStream, at);
        } else if (isNoncharacter(value)) {
            errors.report(ParseErrorCode::noncharacterInInputStream, at);
        } else if (isControl(value) && value != 0 && !isAsciiWhitespace(value < 0x80 ? static_cast<char>(value) : 'x')) {
            errors.report(ParseErrorCode::controlCharacterInInputStream, at);
        }
        at += decoded.length;
    }
}

} // namespace brindle::html
