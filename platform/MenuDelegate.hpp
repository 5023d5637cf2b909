#pragma once

namespace brindle {

class Menu;

/// Is told of a menu on the screen. Thread: main.
class MenuDelegate {
public:
    virtual ~MenuDelegate() = default;
    virtual void menuWillOpen(Menu&) {}
    virtual void menuDidClose(Menu&) {}
};

} // namespace brindle
