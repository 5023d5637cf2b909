#include "foundation/DateFormatter.hpp"

#include "foundation/Text.hpp"
#include "foundation/UserLocale.hpp"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <unicode/dtfmtsym.h>
#include <unicode/smpdtfmt.h>
#include <vector>

namespace brindle {

namespace {

/// No date is longer in any locale; what is longer is not looked at.
constexpr std::size_t maximumSize = 256;

bool isLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

icu::UnicodeString utf16(std::string_view text) {
    return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
}

/// Whether any name of a weekday in the formatter's locale begins with a digit, as abbreviations do in some.
bool hasWeekdaysWithDigits(const icu::SimpleDateFormat& format) {
    const icu::DateFormatSymbols* const symbols = format.getDateFormatSymbols();
    using Symbols = icu::DateFormatSymbols;
    for (const auto context : {Symbols::FORMAT, Symbols::STANDALONE}) {
        for (const auto width : {Symbols::WIDE, Symbols::ABBREVIATED, Symbols::SHORT, Symbols::NARROW}) {
            std::int32_t count = 0;
            const icu::UnicodeString* const names = symbols->getWeekdays(count, context, width);
            if (std::any_of(names, names + count, [](const icu::UnicodeString& name) { return u_isdigit(name.char32At(0)); }))
                return true;
        }
    }
    return false;
}

/// A strict formatter for one pattern.
class PatternFormatter {
public:
    explicit PatternFormatter(std::string_view pattern) : _pattern(pattern) {
        UErrorCode status = U_ZERO_ERROR;
        _format = std::make_unique<icu::SimpleDateFormat>(utf16(pattern), status);
        if (U_FAILURE(status)) {
            _format.reset();
            return;
        }
        _format->setLenient(false);
        const char first = pattern.empty() ? '\0' : pattern.front();
        _refusesLetters = first == 'y';
        _refusesDigits = first == 'E' && !hasWeekdaysWithDigits(*_format);
    }

    const std::string& pattern() const { return _pattern; }

    std::optional<Date> date(std::string_view text) const {
        if (_format == nullptr || refuses(text.front()))
            return std::nullopt;
        const icu::UnicodeString source = utf16(text);
        icu::ParsePosition position(0);
        const UDate milliseconds = _format->parse(source, position);
        if (position.getErrorIndex() >= 0 || position.getIndex() != source.length())
            return std::nullopt;
        // Beyond this a moment has no place in microseconds.
        constexpr double limit = 9.2e15;
        if (!(milliseconds > -limit && milliseconds < limit))
            return std::nullopt;
        return Date(std::chrono::milliseconds(static_cast<std::int64_t>(milliseconds)));
    }

private:
    /// Most texts that fail do so at their first character, which is seen here a hundred times sooner.
    bool refuses(char first) const { return (_refusesLetters && isLetter(first)) || (_refusesDigits && isDigit(first)); }

    std::string _pattern;
    std::unique_ptr<icu::SimpleDateFormat> _format;
    bool _refusesLetters = false;
    bool _refusesDigits = false;
};

/// The formatters of one thread, made at first use and again after the user's locale or zone has changed.
class FormatterCache {
public:
    const PatternFormatter& formatter(std::string_view pattern) {
        const std::uint64_t changes = userLocaleChanges();
        if (changes != _changes)
            _formatters.clear();
        _changes = changes;
        for (const auto& formatter : _formatters) {
            if (formatter->pattern() == pattern)
                return *formatter;
        }
        return *_formatters.emplace_back(std::make_unique<PatternFormatter>(pattern));
    }

private:
    std::uint64_t _changes = 0;
    std::vector<std::unique_ptr<PatternFormatter>> _formatters;
};

} // namespace

std::optional<Date> DateFormatter::date(std::string_view text, std::string_view pattern) {
    const std::string_view bare = text::trimmed(text);
    if (bare.empty() || bare.size() > maximumSize)
        return std::nullopt;
    thread_local FormatterCache cache;
    return cache.formatter(pattern).date(bare);
}

} // namespace brindle
