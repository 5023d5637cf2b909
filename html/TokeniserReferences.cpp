#include <array>

#include "html/AsciiText.hpp"
#include "html/InputStream.hpp"
#include "html/NamedReferences.hpp"
#include "html/Tokeniser.hpp"
#include "html/Utf8.hpp"

// Character references: sections 13.2.5.72 to 13.2.5.80 of the HTML standard.

namespace brindle::html {

namespace {

constexpr char32_t lastCodePoint = 0x10FFFF;

/// What the numbers 0x80 to 0x9F stand for; 0 where they stand for themselves.
constexpr std::array<char32_t, 32> windowsReplacements = {0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,
    0x017E, 0x0178};

/// The four names that nearly all references in feeds have; a match of length 0 for others.
NamedReferenceMatch commonReference(std::string_view text) noexcept {
    if (text.starts_with("lt;")) {
        return {"<", 3};
    }
    if (text.starts_with("gt;")) {
        return {">", 3};
    }
    if (text.starts_with("amp;")) {
        return {"&", 4};
    }
    return text.starts_with("quot;") ? NamedReferenceMatch{"\"", 5} : NamedReferenceMatch{};
}

constexpr int digitValue(char digit, bool isHexadecimal) noexcept {
    if (isAsciiDigit(digit)) {
        return digit - '0';
    }
    const char lower = toAsciiLower(digit);
    return isHexadecimal && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

/// At an ampersand.
void Tokeniser::readReference(bool inAttribute) {
    if (_at[1] == '#') {
        readNumericReference();
    } else if (isAsciiAlphanumeric(_at[1])) {
        readNamedReference(inAttribute);
    } else {
        ++_at;
    }
}

void Tokeniser::readNamedReference(bool inAttribute) {
    const char* const name = _at + 1;
    const std::string_view text(name, static_cast<std::size_t>(_end - name));
    NamedReferenceMatch match = commonReference(text);
    if (match.length == 0) {
        match = longestNamedReference(text);
    }
    if (match.length == 0) {
        _at = name;
        while (isAsciiAlphanumeric(*_at)) {
            ++_at;
        }
        if (*_at == ';') {
            report(ParseErrorCode::unknownNamedCharacterReference, _at);
        }
        return;
    }
    const char* const behind = name + match.length;
    if (behind[-1] != ';') {
        // Addresses such as "?a=1&copy=2" are left alone.
        if (inAttribute && (*behind == '=' || isAsciiAlphanumeric(*behind))) {
            _at = behind;
            return;
        }
        report(ParseErrorCode::missingSemicolonAfterCharacterReference, behind);
    }
    _run.replace(_at, behind, match.value);
    _at = behind;
}

void Tokeniser::readNumericReference() {
    const char* at = _at + 2;
    const bool isHexadecimal = toAsciiLower(*at) == 'x';
    at += isHexadecimal ? 1 : 0;
    const char* const digits = at;
    std::uint32_t number = 0;
    for (int digit = digitValue(*at, isHexadecimal); digit >= 0; digit = digitValue(*++at, isHexadecimal)) {
        // Beyond the last code point the number only has to stay too large.
        if (number <= lastCodePoint) {
            number = number * (isHexadecimal ? 16U : 10U) + static_cast<std::uint32_t>(digit);
        }
    }
    if (at == digits) {
        report(ParseErrorCode::absenceOfDigitsInNumericCharacterReference, at);
        _at = at;
        return;
    }
    if (*at == ';') {
        ++at;
    } else {
        report(ParseErrorCode::missingSemicolonAfterCharacterReference, at);
    }
    std::string text;
    appendUtf8(text, checkedReference(number, at));
    _run.replace(_at, at, text);
    _at = at;
}

/// The code point that a number stands for.
char32_t Tokeniser::checkedReference(std::uint32_t number, const char* at) {
    constexpr char32_t replacement = 0xFFFD;
    if (number == 0) {
        report(ParseErrorCode::nullCharacterReference, at);
        return replacement;
    }
    if (number > lastCodePoint) {
        report(ParseErrorCode::characterReferenceOutsideUnicodeRange, at);
        return replacement;
    }
    if (isSurrogate(number)) {
        report(ParseErrorCode::surrogateCharacterReference, at);
        return replacement;
    }
    if (isNoncharacter(number)) {
        report(ParseErrorCode::noncharacterCharacterReference, at);
    } else if (isControl(number) && (number >= 0x80 || number == '\r' || !isAsciiWhitespace(static_cast<char>(number)))) {
        report(ParseErrorCode::controlCharacterReference, at);
        const char32_t replaced = number >= 0x80 && number < 0xA0 ? windowsReplacements[number - 0x80] : 0;
        return replaced != 0 ? replaced : number;
    }
    return number;
}

} // namespace brindle::html
