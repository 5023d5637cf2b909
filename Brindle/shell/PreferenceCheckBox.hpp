#pragma once

#include "foundation/UserDefaults.hpp"
#include "platform/Button.hpp"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// A check box that shows what stands under a key of the preferences, whoever changes it, and changes it when it is pressed. Thread: main.
class PreferenceCheckBox : public Button {
public:
    /// `key` is a constant of the program. `didChange` is called after a press has stored the new state; may be empty.
    PreferenceCheckBox(
        std::shared_ptr<UserDefaults> defaults, std::string_view key, std::string title, std::function<void()> didChange = {});

    std::string_view key() const { return _key; }

private:
    const std::shared_ptr<UserDefaults> _defaults;
    const std::string_view _key;
    NotificationCenter::Token _observer;
};

} // namespace brindle
