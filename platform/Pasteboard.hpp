#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// What is dragged in place of one row.
struct PasteboardItem {
    std::string type;
    std::string data; ///< bytes
};

/// The contents of a drag.
struct Pasteboard {
    std::vector<PasteboardItem> items;

    bool hasData(std::string_view type) const {
        return std::any_of(items.begin(), items.end(), [&](const PasteboardItem& item) { return item.type == type; });
    }
};

/// What a drop would do, or did.
enum class DragOperation { none = 0, move = 16 };

} // namespace brindle
