#pragma once

#include "platform/Control.hpp"
#include "platform/Menu.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace brindle {

/// A button with a menu of choices, each known by a tag. Thread: main.
class PopUpButton : public Control {
public:
    /// A model as any other; it tells its own observers of its items. Items that come into it otherwise than by `addItem` have no tag.
    Menu& menu() const { return *_menu; }

    /// Appends an item. Separators take a tag too, which nothing selects.
    void addItem(const std::shared_ptr<MenuItem>& item, std::int64_t tag);

    void removeAllItems();

    /// The tag of an item of the menu; absent for any other.
    std::optional<std::int64_t> tag(const MenuItem& item) const;

    /// Null while none is selected.
    const std::shared_ptr<MenuItem>& selectedItem() const { return _selectedItem; }
    std::optional<std::int64_t> selectedTag() const { return _selectedItem ? tag(*_selectedItem) : std::nullopt; }
    /// Selects the first item with that tag that is no separator; false, and no change, where there is none.
    bool selectItem(std::int64_t tag);

    std::function<void()> onChoose; ///< called when a person has chosen; may be empty

    /// A person chooses an item; nothing for a tag that no item has.
    void choose(std::int64_t tag) {
        if (!selectItem(tag))
            return;
        // A copy: what it does may replace it.
        if (const auto chosen = onChoose)
            chosen();
    }

private:
    struct Choice {
        std::shared_ptr<MenuItem> item;
        std::int64_t tag = 0;
    };

    bool isInMenu(const Choice& choice) const { return choice.item->menu() == _menu.get(); }

    std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
    std::vector<Choice> _choices; ///< in order; the menu may have let go of some
    std::shared_ptr<MenuItem> _selectedItem;
};

} // namespace brindle
