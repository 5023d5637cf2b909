#pragma once

#include "Brindle/library/Feed.hpp"
#include "platform/ToolbarItem.hpp"

#include <memory>

namespace brindle {

/// Removes the selected feed; enabled while there is one. Thread: main.
class RemoveFeedToolbarItem : public ToolbarItem {
public:
    std::shared_ptr<Feed> selectedFeed() const { return _selectedFeed.lock(); }
    void setSelectedFeed(const std::shared_ptr<Feed>& feed) {
        _selectedFeed = feed;
        tell();
    }

    bool isEnabled() const override { return !_selectedFeed.expired(); }

private:
    std::weak_ptr<Feed> _selectedFeed;
};

} // namespace brindle
