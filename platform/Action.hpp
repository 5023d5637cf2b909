#pragma once

#include "foundation/Object.hpp"

#include <memory>
#include <string_view>

namespace brindle {

/// What actions are sent by: a control that may stand for something.
class ActionSender : public Object {
public:
    virtual std::shared_ptr<Object> representedObject() const = 0;
};

/// An action under way. `name` is a constant of the program, such as "openFeed:".
struct Action {
    std::string_view name;
    std::shared_ptr<ActionSender> sender = nullptr; ///< null where the program itself sends it

    /// What the sender stands for; null where there is none.
    std::shared_ptr<Object> representedObject() const { return sender ? sender->representedObject() : nullptr; }
};

} // namespace brindle
