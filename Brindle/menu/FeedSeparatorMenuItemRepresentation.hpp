#pragma once

#include "Brindle/menu/MenuItemRepresentation.hpp"

namespace brindle {

/// The line of a separator of the tree. Its submenu hangs from no item. Thread: main.
class FeedSeparatorMenuItemRepresentation : public MenuItemRepresentation {
public:
    FeedSeparatorMenuItemRepresentation() : MenuItemRepresentation(MenuItem::separatorItem()) {}
};

} // namespace brindle
