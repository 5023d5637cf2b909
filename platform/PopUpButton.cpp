#include "platform/PopUpButton.hpp"

namespace brindle {

void PopUpButton::addItem(const std::shared_ptr<MenuItem>& item, std::int64_t tag) {
    _choices.push_back({item, tag});
    _menu->addItem(item);
}

void PopUpButton::removeAllItems() {
    set(_selectedItem, std::shared_ptr<MenuItem>());
    _choices.clear();
    _menu->removeAllItems();
}

std::optional<std::int64_t> PopUpButton::tag(const MenuItem& item) const {
    for (const Choice& choice : _choices) {
        if (choice.item.get() == &item && isInMenu(choice))
            return choice.tag;
    }
    return std::nullopt;
}

bool PopUpButton::selectItem(std::int64_t tag) {
    for (const Choice& choice : _choices) {
        if (choice.tag == tag && isInMenu(choice) && !choice.item->isSeparator()) {
            set(_selectedItem, choice.item);
            return true;
        }
    }
    return false;
}

} // namespace brindle
