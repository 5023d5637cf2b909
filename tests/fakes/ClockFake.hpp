#pragma once

#include "foundation/Date.hpp"

#include <atomic>

namespace brindle {

/// A clock that stands still until a test moves it.
class ClockFake : public Clock {
public:
    explicit ClockFake(Date date) : _date(date) {}
    Date now() const override { return _date; }
    void advance(std::chrono::microseconds by) { _date = _date.load() + by; }

private:
    std::atomic<Date> _date;
};

} // namespace brindle
