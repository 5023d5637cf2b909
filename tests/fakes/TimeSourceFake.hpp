#pragma once

#include "foundation/RunLoop.hpp"

namespace brindle {

/// A time for timers that stands still until a test moves it.
class TimeSourceFake : public TimeSource {
public:
    Time now() const override { return _now; }
    void advance(std::chrono::nanoseconds by) { _now += by; }

private:
    Time _now = Time() + std::chrono::hours(1);
};

} // namespace brindle
