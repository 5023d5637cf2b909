#include "Brindle/shell/PreferenceCheckBox.hpp"

#include <utility>

namespace brindle {

PreferenceCheckBox::PreferenceCheckBox(
    std::shared_ptr<UserDefaults> defaults, std::string_view key, std::string title, std::function<void()> didChange)
    : Button(Kind::checkBox, std::move(title)), _defaults(std::move(defaults)), _key(key) {
    const auto show = [this] { setState(_defaults->boolForKey(_key)); };
    _observer = _defaults->observe(_key, show);
    show();
    onPress = [this, didChange = std::move(didChange)] {
        _defaults->set(_key, state());
        if (didChange)
            didChange();
    };
}

} // namespace brindle
