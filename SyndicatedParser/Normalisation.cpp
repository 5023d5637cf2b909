#include "SyndicatedParser/Normalisation.hpp"

#include "SyndicatedParser/HTMLStringMappings.hpp"
#include "SyndicatedParser/TagRemoval.hpp"
#include "foundation/Console.hpp"
#include "foundation/Text.hpp"

#include <charconv>
#include <vector>

namespace brindle {

namespace {

constexpr std::size_t npos = std::string_view::npos;

/// `text` without the matches of "<[^/]*/>". From a "<" a match can end only at the next "/", so every "<" before a "/" fares alike.
std::string removingEmptyElements(std::string_view text) {
    std::string result;
    std::size_t copied = 0;
    for (std::size_t open = text.find('<'); open != npos;) {
        const std::size_t slash = text.find('/', open);
        if (slash == npos)
            break;
        if (text.substr(slash + 1).starts_with('>')) {
            result += text.substr(copied, open - copied);
            copied = slash + 2;
        }
        open = text.find('<', slash + 1);
    }
    result += text.substr(copied);
    return result;
}

/// The tags around each match of "((<[^>]*>)([^<]*)(<[^>]*>))", opening and closing one in turn. Where one match fails no later one
/// succeeds.
std::vector<std::string_view> pairedTags(std::string_view text) {
    std::vector<std::string_view> tags;
    std::size_t open = text.find('<');
    while (open != npos) {
        const std::size_t openEnd = text.find('>', open);
        const std::size_t close = openEnd == npos ? npos : text.find('<', openEnd);
        const std::size_t closeEnd = close == npos ? npos : text.find('>', close);
        if (closeEnd == npos)
            break;
        tags.push_back(text.substr(open, openEnd + 1 - open));
        tags.push_back(text.substr(close, closeEnd + 1 - close));
        open = text.find('<', closeEnd);
    }
    return tags;
}

void appendUTF8(std::string& result, std::uint32_t codePoint) {
    const auto continuation = [codePoint](int shift) { return static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU)); };
    if (codePoint < 0x80) {
        result += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        result += static_cast<char>(0xC0U | (codePoint >> 6));
        result += continuation(0);
    } else if (codePoint < 0x10000) {
        result += static_cast<char>(0xE0U | (codePoint >> 12));
        result += continuation(6);
        result += continuation(0);
    } else {
        result += static_cast<char>(0xF0U | (codePoint >> 18));
        result += continuation(12);
        result += continuation(6);
        result += continuation(0);
    }
}

/// The character that the digits behind "#" stand for; absent for anything but digits and for numbers that are no character.
std::optional<std::uint32_t> numberedCharacter(std::string_view digits) {
    const bool isHexadecimal = digits.starts_with('x') || digits.starts_with('X');
    digits.remove_prefix(isHexadecimal ? 1 : 0);
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number, isHexadecimal ? 16 : 10);
    const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    if (error != std::errc{} || rest != end || number > 0x10FFFF || isSurrogate)
        return std::nullopt;
    return number;
}

/// Appends what `name` stands for; false when it stands for nothing.
bool appendReferenced(std::string& result, std::string_view name) {
    if (name.starts_with('#')) {
        if (const std::optional<std::uint32_t> character = numberedCharacter(name.substr(1))) {
            appendUTF8(result, *character);
            return true;
        }
    }
    const std::optional<std::string_view> replacement = HTMLStringMappings::text(name);
    result += replacement.value_or(std::string_view());
    return replacement.has_value();
}

} // namespace

std::optional<URL> sanitizedURL(const std::optional<URL>& base, std::string_view text) {
    const std::string_view trimmed = text::trimmed(text);
    std::optional<URL> url = URL::make(trimmed);
    if (!url)
        return std::nullopt;
    const bool isRelative = trimmed.starts_with("..") || trimmed.starts_with('/') || url->scheme().value_or("").empty();
    if (!isRelative)
        return url;
    if (base)
        return URL::make(trimmed, *base);
    Console::print("Can't sanatize URL. Base URL is missing!");
    return url;
}

std::string removingHTMLTags(std::string_view text) {
    std::string result = removingEmptyElements(text);
    // Kept as is: the length of the range to search counts user-perceived characters, its unit is UTF-16, so that in a text where one is
    // made of several units the tail is not searched.
    const std::string_view searched = text.substr(0, text::offsetOfUTF16(text, text::characterCount(text)));
    const std::vector<std::string_view> tags = pairedTags(searched);
    if (tags.empty())
        return result;
    // Kept as is: the contents of head, script and style stay, as those of any other element.
    return TagRemoval(result, tags).result();
}

std::string stringByRemovingHTMLEntities(std::string_view text) {
    std::string result;
    std::size_t scanned = 0;
    for (std::size_t ampersand = text.find('&'); ampersand != npos; ampersand = text.find('&', scanned)) {
        const std::size_t semicolon = text.find(';', ampersand);
        if (semicolon == npos)
            break;
        if (result.empty())
            result.reserve(text.size());
        const std::size_t start = text.rfind('&', semicolon);
        result += text.substr(scanned, start - scanned);
        if (!appendReferenced(result, text.substr(start + 1, semicolon - start - 1)))
            result += text.substr(start, semicolon + 1 - start);
        scanned = semicolon + 1;
    }
    result += text.substr(scanned);
    return result;
}

} // namespace brindle
