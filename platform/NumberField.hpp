#pragma once

#include "platform/Control.hpp"

#include <algorithm>
#include <functional>

namespace brindle {

/// A number between two bounds, for typing or stepping. Thread: main.
class NumberField : public Control {
public:
    NumberField(double minimum, double maximum) : _minimum(minimum), _maximum(maximum), _doubleValue(minimum) {}

    double minimum() const { return _minimum; }
    double maximum() const { return _maximum; }

    double doubleValue() const { return _doubleValue; }
    /// A number outside the bounds, or none, counts as the nearest bound.
    void setDoubleValue(double value) { set(_doubleValue, value > _minimum ? std::min(value, _maximum) : _minimum); }

    std::function<void()> onChoose; ///< called when a person has entered a number; may be empty

    /// A person enters a number.
    void choose(double value) {
        setDoubleValue(value);
        // A copy: what it does may replace it.
        if (const auto chosen = onChoose)
            chosen();
    }

private:
    const double _minimum;
    const double _maximum;
    double _doubleValue;
};

} // namespace brindle
