#include "foundation/Text.hpp"

#include "foundation/FatalError.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>
#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

namespace brindle::text {

namespace {

bool isASCII(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

bool isASCII(std::string_view text) {
    unsigned char bits = 0;
    for (const char character : text)
        bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(character));
    return bits < 0x80;
}

bool isASCIIWhiteSpace(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isWhiteSpace(UChar32 code) {
    return u_isUWhiteSpace(code);
}

bool isWhiteSpaceOrIllegal(UChar32 code) {
    if (u_isUWhiteSpace(code))
        return true;
    switch (u_charType(code)) {
    case U_UNASSIGNED: // noncharacters are of this category as well
    case U_CONTROL_CHAR:
    case U_SURROGATE:
        return true;
    default:
        return false;
    }
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // inside ICU's macro

/// The code point that starts at `at`, which moves behind it; U+FFFD for malformed bytes.
UChar32 next(std::string_view text, std::size_t& at) {
    UChar32 code = 0;
    U8_NEXT_OR_FFFD(text.data(), at, text.size(), code);
    return code;
}

#pragma GCC diagnostic pop

/// The code point that ends at `at`, which moves to its start.
UChar32 previous(std::string_view text, std::size_t& at) {
    // ICU counts in 32 bits here, and one character is never longer than four bytes.
    const std::size_t base = at > 4 ? at - 4 : 0;
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data() + base);
    auto offset = static_cast<std::int32_t>(at - base);
    UChar32 code = 0;
    U8_PREV_OR_FFFD(bytes, 0, offset, code);
    at = base + static_cast<std::size_t>(offset);
    return code;
}

template <typename Predicate>
std::string_view trimmedWhere(std::string_view text, const Predicate& drops) {
    std::size_t begin = 0;
    while (begin < text.size()) {
        std::size_t after = begin;
        if (!drops(next(text, after)))
            break;
        begin = after;
    }
    std::size_t end = text.size();
    while (end > begin) {
        std::size_t before = end;
        if (!drops(previous(text, before)))
            break;
        end = before;
    }
    return text.substr(begin, end - begin);
}

icu::StringPiece piece(std::string_view text) {
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        fatalError("A text of two gigabytes");
    return icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()));
}

/// Whether no boundary rule joins `code` to a neighbour of the same kind.
bool standsAlone(UChar32 code) {
    if (code < 0x300)
        return true;
    return u_getIntPropertyValue(code, UCHAR_GRAPHEME_CLUSTER_BREAK) == U_GCB_OTHER;
}

/// What `visit` gives of an iterator over the boundaries of UAX #29, in full, whose positions are offsets into `text`.
template <typename Visitor>
auto visitClusters(std::string_view text, Visitor visit) {
    UErrorCode status = U_ZERO_ERROR;
    thread_local const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (iterator == nullptr)
        fatalError("No character boundaries");
    status = U_ZERO_ERROR;
    UText* const source = utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status);
    iterator->setText(source, status);
    if (U_FAILURE(status))
        fatalError("No character boundaries");
    const auto result = visit(*iterator);
    utext_close(source);
    return result;
}

std::size_t countClusters(std::string_view text) {
    return visitClusters(text, [](icu::BreakIterator& iterator) {
        std::size_t count = 0;
        while (iterator.next() != icu::BreakIterator::DONE)
            ++count;
        return count;
    });
}

/// The digits behind an optional sign at the start of a text.
struct SignedDigits {
    bool negative = false;
    std::string_view digits;
};

SignedDigits signedDigits(std::string_view text) {
    SignedDigits result;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        result.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    result.digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    return result;
}

/// The value, or the nearest limit in `value` and false when it does not fit.
bool toInteger(const SignedDigits& number, std::int64_t& value) {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    std::uint64_t magnitude = 0;
    const auto result = std::from_chars(number.digits.data(), number.digits.data() + number.digits.size(), magnitude);
    const bool fits = result.ec == std::errc() && magnitude <= largest + (number.negative ? 1 : 0);
    if (number.negative)
        value = fits ? static_cast<std::int64_t>(0 - magnitude) : std::numeric_limits<std::int64_t>::min();
    else
        value = fits ? static_cast<std::int64_t>(magnitude) : std::numeric_limits<std::int64_t>::max();
    return fits;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isASCIIWhiteSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isASCIIWhiteSpace(text.back()))
        text.remove_suffix(1);
    if (text.empty() || (isASCII(text.front()) && isASCII(text.back())))
        return text;
    return trimmedWhere(text, isWhiteSpace);
}

std::string_view trimmedOfIllegalCharacters(std::string_view text) {
    return trimmedWhere(text, isWhiteSpaceOrIllegal);
}

std::string lowercased(std::string_view text) {
    if (isASCII(text))
        return lowercasedASCII(text);
    std::string lower;
    lower.reserve(text.size());
    icu::StringByteSink<std::string> sink(&lower);
    UErrorCode status = U_ZERO_ERROR;
    icu::CaseMap::utf8ToLower("", 0, piece(text), sink, nullptr, status);
    if (U_FAILURE(status))
        fatalError("No lower case");
    return lower;
}

std::string lowercasedASCII(std::string_view text) {
    std::string lower(text);
    for (char& character : lower) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character + ('a' - 'A'));
    }
    return lower;
}

std::string folded(std::string_view text) {
    if (isASCII(text))
        return lowercasedASCII(text);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const decomposition = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status))
        fatalError("No normalisation");
    const icu::UnicodeString decomposed = decomposition->normalize(icu::UnicodeString::fromUTF8(piece(text)), status);
    icu::UnicodeString bare;
    for (std::int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const UChar32 code = decomposed.char32At(at);
        if (u_charType(code) != U_NON_SPACING_MARK)
            bare.append(code);
    }
    std::string result;
    bare.foldCase(U_FOLD_CASE_DEFAULT).toUTF8String(result);
    return result;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    char before = 0;
    for (std::size_t at = 0; at < text.size();) {
        const char character = text[at];
        if (isASCII(character)) {
            ++at;
            count += !(character == '\n' && before == '\r');
        } else {
            if (!standsAlone(next(text, at)))
                return countClusters(text);
            ++count;
        }
        before = character;
    }
    return count;
}

std::string_view prefix(std::string_view text, std::size_t count) {
    if (text.size() <= count)
        return text;
    return visitClusters(text, [&](icu::BreakIterator& iterator) {
        for (std::size_t i = 0; i < count; ++i) {
            if (iterator.next() == icu::BreakIterator::DONE)
                return text;
        }
        return text.substr(0, static_cast<std::size_t>(iterator.current()));
    });
}

std::size_t offsetOfUTF16(std::string_view text, std::size_t units) {
    std::size_t at = 0;
    while (units > 0 && at < text.size()) {
        if (isASCII(text[at])) {
            ++at;
            --units;
            continue;
        }
        std::size_t after = at;
        const std::size_t needed = next(text, after) > 0xFFFF ? 2 : 1;
        if (needed > units)
            break;
        units -= needed;
        at = after;
    }
    return at;
}

std::optional<std::int64_t> integer(std::string_view text) {
    const SignedDigits number = signedDigits(text);
    std::int64_t value = 0;
    const bool whole = !number.digits.empty() && number.digits.end() == text.end();
    if (!whole || !toInteger(number, value))
        return std::nullopt;
    return value;
}

std::int64_t lenientInteger(std::string_view text) {
    const SignedDigits number = signedDigits(trimmed(text));
    std::int64_t value = 0;
    if (!number.digits.empty())
        toInteger(number, value);
    return value;
}

} // namespace brindle::text
