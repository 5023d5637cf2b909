#pragma once

#include "platform/ActionHandler.hpp"
#include "platform/MenuItem.hpp"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace brindle {

/// Logs the actions that it gets, and responds to those that a test names; to all where it names none.
class ActionHandlerFake : public ActionHandler {
public:
    ActionHandlerFake() = default;
    explicit ActionHandlerFake(std::set<std::string, std::less<>> names) : actions(std::move(names)) {}

    bool respondsTo(std::string_view action) const override { return actions.empty() || actions.contains(action); }
    void perform(const Action& action) override {
        log.emplace_back(action.name);
        senders.push_back(action.sender);
        if (onPerform)
            onPerform(action);
    }
    bool validateMenuItem(const MenuItem& item) const override {
        validated.push_back(item.title());
        return validates;
    }

    std::set<std::string, std::less<>> actions;
    bool validates = true;
    std::function<void(const Action&)> onPerform; ///< may be empty
    std::vector<std::string> log;
    std::vector<std::shared_ptr<ActionSender>> senders;
    mutable std::vector<std::string> validated; ///< titles
};

} // namespace brindle
