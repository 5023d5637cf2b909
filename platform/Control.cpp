#include "platform/Control.hpp"

namespace brindle {

Control::Token Control::observe(Observer observer) {
    auto token = std::make_shared<const Observer>(std::move(observer));
    std::erase_if(_observers, [](const auto& each) { return each.expired(); });
    _observers.push_back(token);
    return token;
}

void Control::tell() {
    // An observer may add others or end itself.
    const auto observers = _observers;
    for (const auto& each : observers) {
        if (const auto observer = each.lock())
            (*observer)();
    }
}

} // namespace brindle
