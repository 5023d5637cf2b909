#pragma once

namespace brindle {

class Menu;
class MenuItem;

/// Keeps what shows a menu true to it. Thread: main.
class MenuObserver {
public:
    virtual ~MenuObserver() = default;
    /// Items came or went.
    virtual void menuDidChange(Menu& menu) = 0;
    /// Something of one of its items is another.
    virtual void menuItemDidChange(Menu& menu, MenuItem& item) = 0;
};

} // namespace brindle
