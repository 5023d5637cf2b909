#pragma once

#include "platform/Control.hpp"

namespace brindle {

/// A button of a window's toolbar; whoever shows it calls its controller when it is clicked. Thread: main.
class ToolbarItem : public Control {};

} // namespace brindle
