#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace brindle {

/// An absolute point in time, UTC, to the microsecond.
using Date = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;

/// "YYYY-MM-DDTHH:MM:SS.sssZ", UTC, milliseconds rounded down. Years outside 0000 to 9999 are written with as many digits as they have.
std::string iso8601String(Date date);

/// Where the present moment comes from. Implementations may be asked from any thread.
class Clock {
public:
    virtual ~Clock() = default;
    virtual Date now() const = 0;
};

/// The system's clock.
class SystemClock : public Clock {
public:
    Date now() const override;
};

/// A clock that stands still, for repeatable output.
class FixedClock : public Clock {
public:
    explicit FixedClock(Date date) : _date(date) {}
    Date now() const override { return _date; }

private:
    Date _date;
};

} // namespace brindle
