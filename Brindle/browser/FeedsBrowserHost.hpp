#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"

#include <memory>

namespace brindle {

/// What the browser asks of the application around it. Thread: main.
class FeedsBrowserHost {
public:
    virtual ~FeedsBrowserHost() = default;
    /// Brings the collections up to date, then the menu.
    virtual void refreshInterface() = 0;
    virtual void updateMenu() = 0;
    /// Opens the add-feed window on an entry that is there.
    virtual void editFeedItem(const std::shared_ptr<FeedItem>& feedItem) = 0;
    virtual void editFeedGroup(const std::shared_ptr<FeedGroup>& feedGroup) = 0;
};

} // namespace brindle
