#include "Brindle/browser/FeedsBrowserFeedsViewController.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/CollectionArticles.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"
#include "platform/MenuItem.hpp"
#include "platform/ObjectSender.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace brindle {

std::shared_ptr<FeedsBrowserFeedsViewController> FeedsBrowserFeedsViewController::make(
    FeedsBrowserEnvironment environment, std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem) {
    return std::shared_ptr<FeedsBrowserFeedsViewController>(
        new FeedsBrowserFeedsViewController(std::move(environment), std::move(removeFeedToolbarItem)));
}

FeedsBrowserFeedsViewController::FeedsBrowserFeedsViewController(
    FeedsBrowserEnvironment environment, std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem)
    : feedsOutlineViewDataController(FeedsOutlineViewDataController::make(
          environment.feedsManager, environment.collectionEntityManager, environment.defaults, environment.host)),
      _environment(std::move(environment)), _removeFeedToolbarItem(std::move(removeFeedToolbarItem)) {}

void FeedsBrowserFeedsViewController::viewDidLoad() {
    assertMainThread();
    feedsOutlineViewDataController->delegate = weak_from_this();
    feedsOutlineViewDataController->outlineView = feedsOutlineView;
    feedsOutlineViewDataController->configure();
    feedsOutlineViewDataController->reload();
}

void FeedsBrowserFeedsViewController::send(std::string_view action, std::shared_ptr<Object> object) const {
    _environment.responderChain->perform(Action{action, std::make_shared<ObjectSender>(std::move(object))});
}

void FeedsBrowserFeedsViewController::sendCollection(std::vector<std::shared_ptr<FeedItemArticle>> articles) const {
    send(browseractions::showCollectionArticles, std::make_shared<CollectionArticles>(std::move(articles)));
}

void FeedsBrowserFeedsViewController::setSelectedFeed(const std::shared_ptr<Feed>& feed) {
    _selectedFeed = feed;
    _removeFeedToolbarItem->setSelectedFeed(feed);
}

void FeedsBrowserFeedsViewController::outlineSelectionDidChange(const OutlineItem& item) {
    assertMainThread();
    const auto feed = std::dynamic_pointer_cast<Feed>(item);
    _selectedFeed = feed;
    if (feed && feed->kind != Feed::Kind::separator)
        send(browseractions::showFeed, feed);
    else if (const auto row = std::dynamic_pointer_cast<FeedsOutlineViewDataControllerCollectionItem>(item)) {
        if (const auto collection = feedsOutlineViewDataController->collection(*row))
            sendCollection(collection->entities());
    }
    _removeFeedToolbarItem->setSelectedFeed(feed);
}

void FeedsBrowserFeedsViewController::editFeed() {
    const auto view = feedsOutlineView.lock();
    const auto application = _environment.host.lock();
    const auto row = view ? view->clickedRow() : std::nullopt;
    if (!row || !application)
        return;
    const OutlineItem item = view->itemAtRow(*row);
    if (const auto feedItem = std::dynamic_pointer_cast<FeedItem>(item))
        application->editFeedItem(feedItem);
    else if (const auto feedGroup = std::dynamic_pointer_cast<FeedGroup>(item))
        application->editFeedGroup(feedGroup);
}

void FeedsBrowserFeedsViewController::deleteFeed() {
    if (!selectedFeed()) {
        _environment.alerts->beginSheet({localized("No feed selected!"), localized("Please select a feed to remove.")}, {});
        return;
    }
    const Alert question = {localized("Delete Feed?"), localized("This action cannot be undone."), {localized("Yes"), localized("Cancel")}};
    _environment.alerts->runModal(question, [controller = weak_from_this()](int response) {
        if (const auto self = controller.lock(); self && response == Alert::firstButtonReturn)
            self->removeSelectedFeed();
    });
}

void FeedsBrowserFeedsViewController::removeSelectedFeed() {
    if (const std::shared_ptr<Feed> feed = selectedFeed())
        removeFeed(feed);
}

void FeedsBrowserFeedsViewController::removeFeed(const std::shared_ptr<Feed>& feed) {
    assertMainThread();
    const bool isSelected = feed == selectedFeed();
    const std::shared_ptr<FeedGroup> parent = feed->parent.lock();
    const auto& list = parent ? parent->feeds() : _environment.feedsManager->feeds;
    const auto place = std::find(list.begin(), list.end(), feed);
    const bool isThere = place != list.end();
    const auto index = static_cast<std::size_t>(std::distance(list.begin(), place));
    _environment.feedsManager->removeFeed(feed, parent);
    if (isThere)
        feedsOutlineViewDataController->removeRow(index, parent);
    if (isSelected)
        setSelectedFeed(nullptr);
    _environment.refreshInterface();
    feedsOutlineViewDataController->reloadCounts(parent);
    if (isSelected)
        sendCollection({});
}

bool FeedsBrowserFeedsViewController::validateUserInterfaceItem(std::string_view action) const {
    return action == browseractions::deleteFeed && selectedFeed();
}

bool FeedsBrowserFeedsViewController::respondsTo(std::string_view action) const {
    return action == browseractions::deleteFeed;
}

void FeedsBrowserFeedsViewController::perform(const Action& action) {
    if (action.name == browseractions::deleteFeed)
        deleteFeed();
}

bool FeedsBrowserFeedsViewController::validateMenuItem(const MenuItem& item) const {
    return validateUserInterfaceItem(item.action());
}

} // namespace brindle
