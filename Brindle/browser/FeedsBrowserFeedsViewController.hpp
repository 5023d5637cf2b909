#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/browser/FeedsOutlineViewDataController.hpp"
#include "Brindle/browser/RemoveFeedToolbarItem.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/OutlineView.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace brindle {

/// The outline at the left of the browser. Thread: main.
class FeedsBrowserFeedsViewController : public FeedsOutlineViewDataControllerDelegate,
                                        public ActionHandler,
                                        public std::enable_shared_from_this<FeedsBrowserFeedsViewController> {
public:
    static std::shared_ptr<FeedsBrowserFeedsViewController> make(
        FeedsBrowserEnvironment environment, std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem);

    std::weak_ptr<OutlineView> feedsOutlineView;
    const std::shared_ptr<FeedsOutlineViewDataController> feedsOutlineViewDataController;

    /// Null while none is selected, also while a collection is.
    std::shared_ptr<Feed> selectedFeed() const { return _selectedFeed.lock(); }

    void viewDidLoad();
    /// Selects an entry, with all that is above it expanded, and scrolls to it.
    void reveal(const std::shared_ptr<Feed>& feed) { feedsOutlineViewDataController->reveal(feed); }
    /// What a double click does: opens the add-feed window on the row that was clicked.
    void editFeed();
    /// Removes the selected entry once the person has confirmed it.
    void deleteFeed();
    /// Removes the selected entry without a question; nothing where none is selected.
    void removeSelectedFeed();
    /// Removes an entry without a question. What is selected stays so, unless it is that entry.
    void removeFeed(const std::shared_ptr<Feed>& feed);
    /// Whether an action of the outline's own can be chosen now.
    bool validateUserInterfaceItem(std::string_view action) const;

    bool respondsTo(std::string_view action) const override;
    void perform(const Action& action) override;
    bool validateMenuItem(const MenuItem& item) const override;

    void outlineSelectionDidChange(const OutlineItem& item) override;

private:
    FeedsBrowserFeedsViewController(FeedsBrowserEnvironment environment, std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem);
    void send(std::string_view action, std::shared_ptr<Object> object) const;
    void sendCollection(std::vector<std::shared_ptr<FeedItemArticle>> articles) const;
    void setSelectedFeed(const std::shared_ptr<Feed>& feed);

    const FeedsBrowserEnvironment _environment;
    const std::shared_ptr<RemoveFeedToolbarItem> _removeFeedToolbarItem;
    std::weak_ptr<Feed> _selectedFeed;
};

} // namespace brindle
