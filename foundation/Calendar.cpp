#include "foundation/Calendar.hpp"

#include "foundation/FatalError.hpp"

#include <memory>
#include <unicode/calendar.h>

namespace brindle {

namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status))
        fatalError("The user's calendar could not be asked.");
}

/// Moves the calendar to the first moment of the day that it stands in.
void moveToStartOfDay(icu::Calendar& calendar) {
    for (const UCalendarDateFields field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
        calendar.set(field, 0);
}

Date moment(const icu::Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    const UDate milliseconds = calendar.getTime(status);
    check(status);
    return Date(std::chrono::milliseconds(static_cast<std::int64_t>(milliseconds)));
}

} // namespace

DateInterval Calendar::day(Date date) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(status));
    check(status);
    // Where clocks are set back over midnight, the day begins with the first 0:00; where they skip it, with the first moment behind.
    calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    calendar->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    calendar->setTime(static_cast<UDate>(std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count()), status);
    check(status);
    moveToStartOfDay(*calendar);
    const Date begin = moment(*calendar);
    calendar->add(UCAL_DATE, 1, status);
    check(status);
    moveToStartOfDay(*calendar);
    return {begin, moment(*calendar)};
}

} // namespace brindle
