#pragma once

#include "platform/Control.hpp"
#include "platform/Menu.hpp"

#include <memory>
#include <utility>

namespace brindle::desktop {

/// The status menu for windows: hidden as long as the status area of the desktop offers it, and shown in the browser's window where there
/// is none, so that the program can always be reached. Thread: main.
class StatusMenu : public Control {
public:
    StatusMenu() { setHidden(true); }

    /// Null before the program has one.
    const std::shared_ptr<Menu>& menu() const { return _menu; }
    void setMenu(std::shared_ptr<Menu> menu) { set(_menu, std::move(menu)); }

private:
    std::shared_ptr<Menu> _menu;
};

} // namespace brindle::desktop
