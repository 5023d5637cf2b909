#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"

#include <memory>

namespace brindle {

/// The window that adds a feed or a group, or changes one. Thread: main.
class NewFeedWindow {
public:
    virtual ~NewFeedWindow() = default;
    /// With null for a new one.
    virtual void showForFeedItem(const std::shared_ptr<FeedItem>& feedItem) = 0;
    /// With null for a new one.
    virtual void showForFeedGroup(const std::shared_ptr<FeedGroup>& feedGroup) = 0;
};

} // namespace brindle
