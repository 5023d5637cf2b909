#pragma once

#include "platform/Control.hpp"

namespace brindle {

/// How far something is, from 0 to 100. Thread: main.
class ProgressIndicator : public Control {
public:
    double doubleValue() const { return _doubleValue; }
    void setDoubleValue(double value) { set(_doubleValue, value); }

private:
    double _doubleValue = 0;
};

} // namespace brindle
