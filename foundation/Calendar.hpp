#pragma once

#include "foundation/Date.hpp"

namespace brindle {

/// The moments from `begin` up to, and without, `end`.
struct DateInterval {
    Date begin;
    Date end;

    bool contains(Date date) const { return begin <= date && date < end; }
};

/// The user's calendar, in the user's time zone. Thread: any.
class Calendar {
public:
    /// The calendar day in which a moment lies, from its first moment to that of the next day: not always 24 hours, and not always from
    /// 0:00, where clocks change.
    static DateInterval day(Date moment);
};

} // namespace brindle
