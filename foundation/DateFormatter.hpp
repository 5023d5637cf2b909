#pragma once

#include "foundation/Date.hpp"

#include <optional>
#include <string_view>

namespace brindle {

/// Dates from text by a Unicode date pattern (UTS #35), in the user's locale and time zone, strictly: the whole text must match.
/// White space at both ends of the text is passed over, any other rest gives no date. Details are ICU's: a two-digit year
/// is read as it reads it, days and times need two digits, a literal at the pattern's very end may be missing.
/// The formatters behind it are kept for each thread and pattern. Thread: any.
class DateFormatter {
public:
    /// Absent when `text` is not of the form of `pattern`.
    static std::optional<Date> date(std::string_view text, std::string_view pattern);
};

} // namespace brindle
