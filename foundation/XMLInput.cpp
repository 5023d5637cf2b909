#include "foundation/XMLInput.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <unicode/ucnv.h>

namespace brindle {

namespace {

constexpr std::size_t pieceSize = 4'000'000;

constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isForbidden(std::uint32_t code) {
    if (code < 0x20)
        return code != '\t' && code != '\n' && code != '\r';
    return (code >= 0xD800 && code <= 0xDFFF) || code == 0xFFFE || code == 0xFFFF || code > 0x10FFFF;
}

/// The size of the forbidden character at `at`; 0 for any other.
std::size_t forbiddenSize(std::string_view text, std::size_t at) {
    const auto byte = static_cast<std::uint8_t>(text[at]);
    if (byte < 0x20)
        return isForbidden(byte) ? 1 : 0;
    const std::string_view character = byte == 0xEF ? text.substr(at, 3) : std::string_view();
    return character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF" ? 3 : 0;
}

constexpr std::size_t blockSize = 64;

/// Whether any byte of a block may begin a forbidden character. Without a branch inside, so that compilers take many bytes in one step.
bool maybeForbidden(const char* block) {
    unsigned char found = 0;
    for (std::size_t index = 0; index < blockSize; ++index) {
        const auto byte = static_cast<unsigned char>(block[index]);
        const bool control = (byte < 0x20) & (byte != '\t') & (byte != '\n') & (byte != '\r');
        found = static_cast<unsigned char>(found | static_cast<unsigned char>(control | (byte == 0xEF)));
    }
    return found != 0;
}

bool hasForbiddenCharacter(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(at + blockSize, text.size());
        if (end - at == blockSize && !maybeForbidden(text.data() + at)) {
            at = end;
            continue;
        }
        for (; at < end; ++at) {
            if (forbiddenSize(text, at) != 0)
                return true;
        }
    }
    return false;
}

/// The size of the reference to a forbidden character by number at the "&" at `at`; 0 for any other reference.
std::size_t forbiddenReferenceSize(std::string_view text, std::size_t at) {
    if (text.substr(at, 2) != "&#")
        return 0;
    std::size_t position = at + 2;
    const bool hexadecimal = position < text.size() && text[position] == 'x';
    position += hexadecimal;
    const std::size_t digits = position;
    std::uint32_t code = 0;
    for (; position < text.size() && text[position] != ';'; ++position) {
        const char digit = text[position];
        const char lower = static_cast<char>(digit | 0x20);
        std::uint32_t value = 0;
        if (digit >= '0' && digit <= '9')
            value = static_cast<std::uint32_t>(digit - '0');
        else if (hexadecimal && lower >= 'a' && lower <= 'f')
            value = static_cast<std::uint32_t>(lower - 'a' + 10);
        else
            return 0;
        code = std::min<std::uint32_t>(code * (hexadecimal ? 16 : 10) + value, 0x110000);
    }
    if (position == digits || position == text.size() || !isForbidden(code))
        return 0;
    return position + 1 - at;
}

bool hasForbiddenReference(std::string_view text) {
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
        if (forbiddenReferenceSize(text, at) != 0)
            return true;
    }
    return false;
}

/// The end of the CDATA section, comment or processing instruction at the "<" at `at`, in which "&" begins no reference; `at` when there is
/// none.
std::size_t endOfLiteral(std::string_view text, std::size_t at) {
    struct Delimiters {
        std::string_view begin;
        std::string_view end;
    };
    for (const Delimiters& literal : {Delimiters{"<![CDATA[", "]]>"}, Delimiters{"<!--", "-->"}, Delimiters{"<?", "?>"}}) {
        if (text.substr(at, literal.begin.size()) == literal.begin)
            return std::min(text.find(literal.end, at + literal.begin.size()), text.size());
    }
    return at;
}

/// Whether a byte has to be looked at where characters are left out: the first of a forbidden character, of a literal or of a reference.
constexpr std::array<bool, 256> needsLook = [] {
    std::array<bool, 256> table{};
    for (std::size_t byte = 0; byte < 0x20; ++byte)
        table[byte] = byte != '\t' && byte != '\n' && byte != '\r';
    table['<'] = table['&'] = table[0xEF] = true;
    return table;
}();

std::string withoutForbidden(std::string_view text) {
    std::string cleaned;
    cleaned.reserve(text.size());
    std::size_t endOfReferenceless = 0;
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size();) {
        const char character = text[at];
        if (!needsLook[static_cast<std::uint8_t>(character)]) {
            ++at;
            continue;
        }
        if (character == '<' && at >= endOfReferenceless)
            endOfReferenceless = endOfLiteral(text, at);
        std::size_t omitted = forbiddenSize(text, at);
        if (character == '&' && at >= endOfReferenceless)
            omitted = forbiddenReferenceSize(text, at);
        if (omitted == 0) {
            ++at;
            continue;
        }
        cleaned.append(text, kept, at - kept);
        at += omitted;
        kept = at;
    }
    return cleaned.append(text, kept);
}

/// The encoding that the XML declaration at the start of `data` names, in letters of ASCII; absent without one.
std::optional<std::string> declaredEncoding(std::string_view data) {
    constexpr std::string_view label = "encoding";
    data.remove_prefix(std::min(data.find_first_not_of(whiteSpace), data.size()));
    if (data.substr(0, 5) != "<?xml")
        return std::nullopt;
    std::string_view declaration = data.substr(0, data.substr(0, 1024).find("?>"));
    const std::size_t found = declaration.find(label);
    if (declaration.size() == data.size() || found == std::string_view::npos)
        return std::nullopt;
    declaration.remove_prefix(found + label.size());
    const std::size_t quote = declaration.find_first_of("\"'");
    if (quote == std::string_view::npos || declaration.substr(0, quote).find_first_not_of(" \t\r\n=") != std::string_view::npos)
        return std::nullopt;
    const std::size_t end = declaration.find(declaration[quote], quote + 1);
    if (end == std::string_view::npos)
        return std::nullopt;
    return std::string(declaration.substr(quote + 1, end - quote - 1));
}

/// The whole of `data` out of a named encoding; absent when the encoding is unknown or any byte is invalid in it.
std::optional<std::string> converted(std::string_view data, const std::string& encoding) {
    if (data.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() / 4))
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(encoding.c_str(), &status), &ucnv_close);
    if (U_FAILURE(status))
        return std::nullopt;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    std::string text(data.size() * 2 + 16, '\0');
    for (int attempt = 0; attempt < 2; ++attempt) {
        status = U_ZERO_ERROR;
        const std::int32_t size = ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), text.data(), static_cast<std::int32_t>(text.size()),
            data.data(), static_cast<std::int32_t>(data.size()), &status);
        const bool tooSmall = status == U_BUFFER_OVERFLOW_ERROR;
        if (U_FAILURE(status) && !tooSmall)
            return std::nullopt;
        text.resize(static_cast<std::size_t>(size));
        if (!tooSmall)
            return text;
    }
    return std::nullopt;
}

/// `data` with the byte A0 for each "&nbsp;". Markup that was rewritten as Latin 1 has the reference wherever the byte was, also inside
/// characters of several bytes. Where there are CDATA sections, nothing was rewritten.
std::string withNoBreakSpaceBytes(std::string_view data) {
    constexpr std::string_view reference = "&nbsp;";
    std::string bytes;
    std::size_t copied = 0;
    for (std::size_t at = data.find(reference); at != std::string_view::npos; at = data.find(reference, copied)) {
        bytes.append(data, copied, at - copied).push_back('\xA0');
        copied = at + reference.size();
    }
    return bytes.append(data, copied);
}

std::optional<std::string> convertedMarkup(std::string_view data, const std::string& encoding) {
    const bool isRewritten = data.find("<![CDATA[") == std::string_view::npos;
    std::optional<std::string> text = isRewritten ? converted(withNoBreakSpaceBytes(data), encoding) : std::nullopt;
    return text ? std::move(text) : converted(data, encoding);
}

/// The text of bytes that are not UTF-8.
std::string decodedByDeclaration(std::string_view data) {
    if (data.substr(0, 2) == "\xFE\xFF" || data.substr(0, 2) == "\xFF\xFE") {
        if (std::optional<std::string> text = converted(data, "UTF-16"))
            return *std::move(text);
    }
    if (const std::optional<std::string> declared = declaredEncoding(data)) {
        std::optional<std::string> text = convertedMarkup(data, *declared);
        // A declaration that could be read in single bytes is untrue when it names an encoding that reads it otherwise, like UTF-16.
        if (text && text->substr(0, 64).find("<?xml") != std::string::npos)
            return *std::move(text);
    }
    return decode(data, StringEncoding::isoLatin1).value();
}

constexpr std::size_t maximumAttributes = 1000;

/// How many attributes the tag at the start of `text` may have at most.
std::size_t attributeCount(std::string_view text) {
    if (text.starts_with("<!") || text.starts_with("<?"))
        return 0;
    std::size_t count = 0;
    for (std::size_t at = text.find_first_of("=>\"'"); at != std::string_view::npos; at = text.find_first_of("=>\"'", at + 1)) {
        if (text[at] == '>')
            break;
        if (text[at] == '=')
            ++count;
        else
            at = text.find(text[at], at + 1);
        if (at == std::string_view::npos)
            break;
    }
    return count;
}

} // namespace

XMLInput::XMLInput(std::string_view data, StringEncoding encoding) : _text(data) {
    if (encoding != StringEncoding::utf8) {
        _decoded = decodedByDeclaration(data);
        _text = _decoded;
    }
    if (_text.substr(0, byteOrderMark.size()) == byteOrderMark)
        _text.remove_prefix(byteOrderMark.size());
    const std::string_view skipped = _text.substr(0, _text.find_first_not_of(whiteSpace));
    _skippedLines = static_cast<int>(std::count(skipped.begin(), skipped.end(), '\n'));
    _text.remove_prefix(skipped.size());
    if (hasForbiddenCharacter(_text) || hasForbiddenReference(_text)) {
        _cleaned = withoutForbidden(_text);
        _text = _cleaned;
    }
}

std::size_t XMLInput::endOfPiece(std::size_t begin) const {
    const std::size_t limit = begin + pieceSize;
    if (_text.size() <= limit)
        return _text.size();
    std::size_t lastMarkup = begin;
    std::size_t at = begin;
    for (std::size_t markup = _text.find('<', at); markup < limit; markup = _text.find('<', at)) {
        lastMarkup = markup;
        at = std::max(endOfLiteral(_text, markup), markup + 1);
    }
    if (lastMarkup > begin)
        return lastMarkup;
    // A single text or literal fills the piece: the cut comes inside the text, between two characters, or behind the literal.
    std::size_t end = std::max(at, limit);
    while (end < _text.size() && (static_cast<std::uint8_t>(_text[end]) & 0xC0) == 0x80)
        ++end;
    return std::min(end, _text.size());
}

bool hasTooManyAttributes(std::string_view text) {
    constexpr std::size_t modestTag = 8192;
    for (std::size_t tag = text.find('<'); tag != std::string_view::npos;) {
        // No tag has a "<" inside: where the next one is near, there is nothing to count. The last one in reach is as good as the next.
        const std::size_t near = text.substr(tag + 1, modestTag).rfind('<');
        if (near != std::string_view::npos) {
            tag += 1 + near;
            continue;
        }
        if (attributeCount(text.substr(tag)) > maximumAttributes)
            return true;
        tag = text.find('<', tag + 1);
    }
    return false;
}

} // namespace brindle
