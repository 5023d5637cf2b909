#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace brindle {

/// Which of the menu's own items one is. Thread: any.
struct MenuType {
    enum class Case { custom, preferences, pauseUpdates, about, quit, updateAll, markAllRead, markAllUnread, openAllUnread, feedsBrowser };

    Case type = Case::custom;
    std::string title = {}; ///< of a custom item; empty for the others

    friend bool operator==(const MenuType&, const MenuType&) = default;
};

struct MenuTypeHash {
    std::size_t operator()(const MenuType& menuType) const {
        return std::hash<std::string>()(menuType.title) * 31 + static_cast<std::size_t>(menuType.type);
    }
};

} // namespace brindle
