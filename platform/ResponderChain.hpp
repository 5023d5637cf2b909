#pragma once

#include "platform/ActionHandler.hpp"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace brindle {

/// Who is asked for an action without a target, in order: the controller of the key window first, the application's delegate last. Holds
/// none of them. Thread: main.
class ResponderChain {
public:
    using Handlers = std::vector<std::weak_ptr<ActionHandler>>;

    ResponderChain() = default;
    explicit ResponderChain(Handlers handlers) : _handlers(std::move(handlers)) {}

    void setHandlers(Handlers handlers) { _handlers = std::move(handlers); }
    /// The chain whose handlers are asked after these. Chains must not go in a circle.
    void setNext(std::weak_ptr<const ResponderChain> next) { _next = std::move(next); }

    /// The first that responds to the action; null where none does.
    std::shared_ptr<ActionHandler> handler(std::string_view action) const;
    /// The item's target where it has one and that responds, else, for an item without one, the first of the chain that does.
    std::shared_ptr<ActionHandler> handler(const MenuItem& item) const;

    /// Gives an action without a target to its handler; false where there is none.
    bool perform(const Action& action) const;
    /// Gives the item's action to its handler, the item as its sender; false where there is none.
    bool perform(const std::shared_ptr<MenuItem>& item) const;

    /// Whether an item can be chosen: its handler says so; one without an action has no handler, and is chosen for its submenu alone.
    bool validate(const MenuItem& item) const;

private:
    Handlers _handlers;
    std::weak_ptr<const ResponderChain> _next;
};

} // namespace brindle
