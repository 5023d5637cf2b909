#pragma once

#include "foundation/UserDefaults.hpp"
#include "platform/TextStyle.hpp"

#include <memory>

namespace brindle {

/// How the items of articles look, by the preferences. Thread: main.
struct ArticleItemOptions {
    bool marksItems = false;         ///< unread ones bear a check mark
    bool marksItemsWhenRead = false; ///< read ones bear it instead
    bool usesShortNames = false;
    bool hasPreviews = false;
    std::shared_ptr<const TextStyle> unreadStyle; ///< null for plain text
    std::shared_ptr<const TextStyle> readStyle;   ///< null for plain text

    static ArticleItemOptions read(const UserDefaults& defaults);
};

} // namespace brindle
