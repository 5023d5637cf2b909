#include "Brindle/browser/FeedsBrowserWindowController.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace brindle {

namespace {

using Tag = FeedsBrowserWindowController::FeedPopUpTag;

constexpr std::int64_t separatorTag = -1;

struct PopUpItem {
    std::string_view titleKey;
    Tag tag;
    std::string_view action;
};

constexpr std::array<PopUpItem, 5> popUpItems = {{
    {"Add Feed", Tag::addFeed, browseractions::newFeed},
    {"Add Group", Tag::addGroup, browseractions::newGroup},
    {"Add Separator", Tag::addSeparator, browseractions::newSeparator},
    {"Import Feeds...", Tag::importFeeds, browseractions::importOPML},
    {"Export Feeds...", Tag::exportFeeds, browseractions::exportOPML},
}};

} // namespace

FeedsBrowserWindowController::FeedsBrowserWindowController(FeedsBrowserEnvironment environment, std::shared_ptr<Window> window,
    std::shared_ptr<FeedsBrowserSplitViewController> splitViewController, std::shared_ptr<RemoveFeedToolbarItem> toolbarItem)
    : removeFeedToolbarItem(std::move(toolbarItem)), _environment(std::move(environment)), _window(std::move(window)),
      _splitViewController(std::move(splitViewController)) {}

void FeedsBrowserWindowController::windowDidLoad() {
    assertMainThread();
    _window->setFrameAutosaveName(frameAutosaveName);
    _window->setFrameUsingName(frameAutosaveName);
    buildFeedPopUp();
}

void FeedsBrowserWindowController::buildFeedPopUp() {
    for (const PopUpItem& item : popUpItems) {
        if (item.tag == Tag::importFeeds)
            feedPopUpButton.addItem(MenuItem::separatorItem(), separatorTag);
        feedPopUpButton.addItem(std::make_shared<MenuItem>(localized(item.titleKey), item.action), static_cast<std::int64_t>(item.tag));
    }
}

void FeedsBrowserWindowController::feedPopUpChanged() {
    const auto tag = feedPopUpButton.selectedTag();
    for (const PopUpItem& item : popUpItems) {
        if (tag == static_cast<std::int64_t>(item.tag))
            _environment.responderChain->perform(Action{item.action, feedPopUpButton.selectedItem()});
    }
}

void FeedsBrowserWindowController::showWindow() {
    assertMainThread();
    FeedsBrowserFeedsViewController& feeds = _splitViewController->feedsViewController();
    _splitViewController->splitViewItems.front().setAllowsFullHeightLayout(true);
    if (const auto feed = selectedFeed.lock()) {
        endSearch();
        if (feed != feeds.selectedFeed())
            feeds.reveal(feed);
    }
    _window->show();
    _window->setTitle(std::string(windowTitle));
}

/// While one is on, the feeds are hidden.
void FeedsBrowserWindowController::endSearch() {
    if (searchField.stringValue().empty())
        return;
    searchField.setStringValue({});
    controlTextDidChange();
}

void FeedsBrowserWindowController::removeSelectedFeed() {
    _splitViewController->feedsViewController().removeSelectedFeed();
}

void FeedsBrowserWindowController::searchFieldDidStartSearching() {
    _search.prepare(*_environment.feedsManager);
}

void FeedsBrowserWindowController::controlTextDidChange() {
    assertMainThread();
    const std::string& term = searchField.stringValue();
    FeedsBrowserFeedArticlesViewController& articles = _splitViewController->articlesViewController();
    _splitViewController->splitViewItems.front().setCollapsed(!term.empty());
    _splitViewController->articleViewController().showArticle(nullptr);
    // Kept as is: no feed is selected while a collection is, so that the pane stays empty when the term is gone.
    if (term.empty())
        articles.showFeed(_splitViewController->feedsViewController().selectedFeed());
    else
        articles.showMatches(_search.articles(*_environment.feedsManager, term));
}

} // namespace brindle
