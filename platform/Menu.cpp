#include "platform/Menu.hpp"

#include "foundation/FatalError.hpp"
#include "platform/ResponderChain.hpp"

#include <iterator>
#include <utility>

namespace brindle {

Menu::~Menu() {
    // Menus may be nested deeper than any stack: each one that dies with this one hands its items over before its own destructor runs.
    Items dying = letGo();
    while (!dying.empty()) {
        const std::shared_ptr<MenuItem> item = std::move(dying.back());
        dying.pop_back();
        if (item.use_count() > 1 || item->_submenu.use_count() != 1)
            continue;
        Items below = item->_submenu->letGo();
        std::move(below.begin(), below.end(), std::back_inserter(dying));
    }
}

void Menu::addItem(const std::shared_ptr<MenuItem>& item) {
    if (item->_menu)
        fatalError("A menu item is in another menu already.");
    item->_menu = this;
    _items.push_back(item);
    tell();
}

const Menu::Items& Menu::items() {
    if (const auto source = std::exchange(_itemSource, {}).lock()) {
        // Nothing that an observer has not been told of.
        const bool wasSilent = std::exchange(_isSilent, true);
        source->appendItems(*this);
        _isSilent = wasSilent;
    }
    return _items;
}

void Menu::setItemSource(std::weak_ptr<MenuItemSource> source) {
    _itemSource = std::move(source);
    tell();
}

void Menu::moveItems(Menu& other) {
    auto source = std::exchange(other._itemSource, {});
    const Items moved = other.letGo();
    other.tell();
    reserve(moved.size());
    for (const std::shared_ptr<MenuItem>& item : moved)
        addItem(item);
    // Last, since an observer that is told of an item may look, and what the source makes stands behind all of them.
    if (!source.expired())
        setItemSource(std::move(source));
}

void Menu::addObserver(std::weak_ptr<MenuObserver> observer) {
    std::erase_if(_observers, [](const auto& each) { return each.expired(); });
    _observers.push_back(std::move(observer));
}

void Menu::removeAllItems() {
    const Items removed = letGo();
    _itemSource.reset();
    tell();
}

Menu::Items Menu::letGo() {
    for (const std::shared_ptr<MenuItem>& item : _items)
        item->_menu = nullptr;
    return std::exchange(_items, {});
}

void Menu::update(const ResponderChain& chain) {
    if (!autoenablesItems)
        return;
    for (const std::shared_ptr<MenuItem>& item : items()) {
        if (!item->isSeparator())
            item->setEnabled(chain.validate(*item));
    }
}

void Menu::willOpen(const ResponderChain& chain) {
    update(chain);
    if (const auto receiver = delegate.lock())
        receiver->menuWillOpen(*this);
}

void Menu::didClose() {
    if (const auto receiver = delegate.lock())
        receiver->menuDidClose(*this);
}

void Menu::tell() {
    if (_isSilent)
        return;
    // An observer may add others.
    const auto observers = _observers;
    for (const std::weak_ptr<MenuObserver>& each : observers) {
        if (const auto observer = each.lock())
            observer->menuDidChange(*this);
    }
}

void Menu::tellOfItem(MenuItem& item) {
    if (_isSilent)
        return;
    const auto observers = _observers;
    for (const std::weak_ptr<MenuObserver>& each : observers) {
        if (const auto observer = each.lock())
            observer->menuItemDidChange(*this, item);
    }
}

} // namespace brindle
