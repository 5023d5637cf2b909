#pragma once

#include "platform/MenuDelegate.hpp"
#include "platform/MenuItem.hpp"
#include "platform/MenuObserver.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindle {

class Menu;
class ResponderChain;

/// Appends items to a menu when somebody first looks into it, for menus that are many and seldom looked into.
class MenuItemSource {
public:
    virtual ~MenuItemSource() = default;
    virtual void appendItems(Menu& menu) = 0;
};

/// A list of items, and of menus below them: a model that a toolkit shows. Menus may be nested to any depth. Thread: main.
class Menu {
public:
    using Items = std::vector<std::shared_ptr<MenuItem>>;

    Menu() = default;
    /// Takes no stack for the depth of the menus below it.
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    std::weak_ptr<MenuDelegate> delegate;
    /// Whether its items are enabled and disabled by who takes their actions, each time that it opens.
    bool autoenablesItems = true;

    /// With those that were still to be made.
    const Items& items();
    /// Appends an item. Fatal for one that is in a menu already.
    void addItem(const std::shared_ptr<MenuItem>& item);
    /// Makes room for that many items more.
    void reserve(std::size_t count) { _items.reserve(_items.size() + count); }
    /// Lets `source` append items behind those that are there, when somebody looks; nothing when it is gone by then.
    void setItemSource(std::weak_ptr<MenuItemSource> source);
    /// Appends all items of `other`, taken out of it first, those that are still to be made included. This menu has none of the latter yet.
    void moveItems(Menu& other);
    void removeAllItems();

    /// Held weakly; told of every change from now on.
    void addObserver(std::weak_ptr<MenuObserver> observer);

    /// Enables and disables the items by who takes their actions, where that is done automatically.
    void update(const ResponderChain& chain);
    /// For what shows the menu, before it does: updates it, and tells the delegate.
    void willOpen(const ResponderChain& chain);
    /// For what shows the menu, when it is gone from the screen.
    void didClose();

private:
    friend class MenuItem;
    Items letGo();
    void tell();
    void tellOfItem(MenuItem& item);

    Items _items;
    std::weak_ptr<MenuItemSource> _itemSource;
    std::vector<std::weak_ptr<MenuObserver>> _observers;
    bool _isSilent = false; ///< while items are made that the observers have been told of
};

} // namespace brindle
