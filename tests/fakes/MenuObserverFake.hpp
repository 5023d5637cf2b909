#pragma once

#include "platform/Menu.hpp"
#include "platform/MenuObserver.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs what it is told: "menu" and the number of items, or "item" and the item's title.
class MenuObserverFake : public MenuObserver {
public:
    void menuDidChange(Menu& menu) override { log.push_back("menu " + std::to_string(menu.items().size())); }
    void menuItemDidChange(Menu&, MenuItem& item) override { log.push_back("item " + item.title()); }

    std::vector<std::string> log;
};

} // namespace brindle
