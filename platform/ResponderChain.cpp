#include "platform/ResponderChain.hpp"

#include "platform/MenuItem.hpp"

namespace brindle {

std::shared_ptr<ActionHandler> ResponderChain::handler(std::string_view action) const {
    for (const std::weak_ptr<ActionHandler>& each : _handlers) {
        if (auto found = each.lock(); found && found->respondsTo(action))
            return found;
    }
    const auto next = _next.lock();
    return next ? next->handler(action) : nullptr;
}

std::shared_ptr<ActionHandler> ResponderChain::handler(const MenuItem& item) const {
    if (item.action().empty())
        return nullptr;
    if (!item.hasTarget())
        return handler(item.action());
    auto target = item.target();
    return target && target->respondsTo(item.action()) ? target : nullptr;
}

bool ResponderChain::perform(const Action& action) const {
    const auto found = handler(action.name);
    if (found)
        found->perform(action);
    return found != nullptr;
}

bool ResponderChain::perform(const std::shared_ptr<MenuItem>& item) const {
    const auto found = handler(*item);
    if (found)
        found->perform({item->action(), item});
    return found != nullptr;
}

bool ResponderChain::validate(const MenuItem& item) const {
    if (item.action().empty())
        return item.hasSubmenu();
    const auto found = handler(item);
    return found && found->validateMenuItem(item);
}

} // namespace brindle
