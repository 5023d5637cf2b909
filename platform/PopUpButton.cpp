#include "platform/PopUpButton.hpp"

#include <cstddef>

namespace brindle {

void PopUpButton::addItem(const std::shared_ptr<MenuItem>& item, std::int64_t tag) {
    _tags.push_back(tag);
    _menu->addItem(item);
}

void PopUpButton::removeAllItems() {
    set(_selectedItem, std::shared_ptr<MenuItem>());
    _tags.clear();
    _menu->removeAllItems();
}

std::optional<std::int64_t> PopUpButton::tag(const MenuItem& item) const {
    const Menu::Items& items = _menu->items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].get() == &item)
            return _tags[i];
    }
    return std::nullopt;
}

bool PopUpButton::selectItem(std::int64_t tag) {
    const Menu::Items& items = _menu->items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (_tags[i] == tag && !items[i]->isSeparator()) {
            set(_selectedItem, items[i]);
            return true;
        }
    }
    return false;
}

} // namespace brindle
