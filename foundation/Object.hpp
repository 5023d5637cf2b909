#pragma once

namespace brindle {

/// The root of what can be handed around without being looked into: what a menu item stands for, what an action was sent by.
class Object {
public:
    virtual ~Object() = default;
};

} // namespace brindle
