#pragma once

#include "platform/Control.hpp"

namespace brindle {

/// How far something is, from 0 to 100. Thread: main.
class ProgressIndicator : public Control {
public:
    double doubleValue() const { return _doubleValue; }
    void setDoubleValue(double value) { set(_doubleValue, value); }

    /// Whether it moves, for work of which nobody knows how long it takes.
    bool isAnimating() const { return _isAnimating; }
    void setAnimating(bool isAnimating) { set(_isAnimating, isAnimating); }

private:
    double _doubleValue = 0;
    bool _isAnimating = false;
};

} // namespace brindle
