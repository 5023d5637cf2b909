#pragma once

#include "platform/Action.hpp"

#include <string_view>

namespace brindle {

class MenuItem;

/// Takes actions. Thread: main.
class ActionHandler {
public:
    virtual ~ActionHandler() = default;
    virtual bool respondsTo(std::string_view action) const = 0;
    /// Only for actions that it responds to.
    virtual void perform(const Action& action) = 0;
    /// Whether an item whose action this object would get can be chosen now.
    virtual bool validateMenuItem(const MenuItem&) const { return true; }
};

} // namespace brindle
