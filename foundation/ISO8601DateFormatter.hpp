#pragma once

#include "foundation/Date.hpp"

#include <optional>
#include <string_view>

namespace brindle {

/// Internet date and time (RFC 3339) without fractional seconds: "2020-01-01T00:00:00Z" or a zone with a colon ("+01:00").
/// Nothing else, in front or behind, and no other form. Thread: any.
class ISO8601DateFormatter {
public:
    static std::optional<Date> date(std::string_view text);
};

} // namespace brindle
