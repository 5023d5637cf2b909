#include "desktop/windows/FeedsBrowserWindow.hpp"

#include <utility>

namespace brindle::desktop {

FeedsBrowserWindow makeFeedsBrowserWindow(const WindowEnvironment& windows, const std::shared_ptr<WebPluginLoader>& webPlugin,
    const std::shared_ptr<StatusMenu>& statusMenu, const FeedsBrowserEnvironment& environment) {
    const auto window = std::make_shared<BrowserWindow>(windows, webPlugin);
    const auto removeFeed = std::make_shared<RemoveFeedToolbarItem>();
    const auto panes = FeedsBrowserSplitViewController::make(environment, removeFeed, window->articlePane().container());
    auto controller = std::make_shared<FeedsBrowserWindowController>(environment, window, panes, removeFeed);
    panes->feedsViewController().feedsOutlineView = window->feedsView();
    panes->articlesViewController().articlesTableView = window->articlesView();
    window->bind(*controller, environment, statusMenu);

    panes->feedsViewController().viewDidLoad();
    panes->articlesViewController().viewDidLoad();
    panes->articlesViewController().viewDidAppear();
    panes->articleViewController().viewDidLoad();
    panes->articleViewController().showArticle(nullptr);
    controller->windowDidLoad();
    return {std::move(controller), window};
}

} // namespace brindle::desktop
