#pragma once

#include "platform/Menu.hpp"
#include "platform/MenuItem.hpp"

#include <memory>
#include <vector>

namespace brindle {

/// Owns one item of the menu, and the submenu below it. Made afresh at every rebuild; holds nothing beyond it. Thread: main.
class MenuItemRepresentation {
public:
    /// An item without a title and an action, with an empty submenu.
    MenuItemRepresentation() { _menuItem->setSubmenu(_submenu); }
    virtual ~MenuItemRepresentation() = default;
    MenuItemRepresentation(const MenuItemRepresentation&) = delete;
    MenuItemRepresentation& operator=(const MenuItemRepresentation&) = delete;

    /// Fills the item.
    virtual void configure() {}

    const std::shared_ptr<MenuItem>& menuItem() const { return _menuItem; }
    const std::shared_ptr<Menu>& submenu() const { return _submenu; }

protected:
    explicit MenuItemRepresentation(std::shared_ptr<MenuItem> item) : _menuItem(std::move(item)) {}

private:
    std::shared_ptr<MenuItem> _menuItem = std::make_shared<MenuItem>();
    std::shared_ptr<Menu> _submenu = std::make_shared<Menu>();
};

using MenuItemRepresentations = std::vector<std::shared_ptr<MenuItemRepresentation>>;

} // namespace brindle
