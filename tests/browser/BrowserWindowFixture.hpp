#pragma once

#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "tests/browser/OutlineFixture.hpp"
#include "tests/fakes/TableViewFake.hpp"
#include "tests/fakes/WebViewFake.hpp"
#include "tests/fakes/WindowFake.hpp"

namespace brindle {

/// The whole browser on the tree: Group(x), -, b, in a window that has not the keyboard.
class BrowserWindowTest : public BrowserTest {
protected:
    BrowserWindowTest() {
        outline->name = rowName;
        feeds->feedsOutlineView = outline;
        feeds->viewDidLoad();
        articles->articlesTableView = table;
        articles->viewDidLoad();
        article->viewDidLoad();
        controller.windowDidLoad();
        takeCalls();
    }

    void becomeKey() {
        ResponderChain::Handlers handlers = split->responders();
        handlers.emplace_back(application);
        environment.responderChain->setHandlers(std::move(handlers));
    }
    std::vector<std::string> listed() const { return titles(articles->feedItemArticles()); }

    std::shared_ptr<FeedGroup> group = add(FeedGroup::make("Group"));
    std::shared_ptr<FeedItem> x = add(makeItem("x", {"x one", "x two"}), group);
    std::shared_ptr<FeedSeparator> separator = add(FeedSeparator::make());
    std::shared_ptr<FeedItem> b = add(makeItem("b", {"b one"}));
    std::shared_ptr<OutlineViewFake> outline = std::make_shared<OutlineViewFake>(log);
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>(makeCallLog());
    std::shared_ptr<WebContainerViewFake> container = std::make_shared<WebContainerViewFake>(makeCallLog());
    std::shared_ptr<WindowFake> window = std::make_shared<WindowFake>(log);
    std::shared_ptr<RemoveFeedToolbarItem> toolbarItem = std::make_shared<RemoveFeedToolbarItem>();
    std::shared_ptr<FeedsBrowserSplitViewController> split = FeedsBrowserSplitViewController::make(environment, toolbarItem, container);
    FeedsBrowserFeedsViewController* feeds = &split->feedsViewController();
    FeedsBrowserFeedArticlesViewController* articles = &split->articlesViewController();
    FeedsBrowserArticleViewController* article = &split->articleViewController();
    FeedsBrowserWindowController controller{environment, window, split, toolbarItem};
};

} // namespace brindle
