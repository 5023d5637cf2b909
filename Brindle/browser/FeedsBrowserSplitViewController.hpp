#pragma once

#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"
#include "Brindle/browser/FeedsBrowserFeedArticlesViewController.hpp"
#include "Brindle/browser/FeedsBrowserFeedsViewController.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/ResponderChain.hpp"
#include "platform/SplitViewItem.hpp"

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace brindle {

/// The three panes of the browser: the feeds, the articles, the article. Takes what one pane sends to be shown in the next. Thread: main.
class FeedsBrowserSplitViewController : public ActionHandler, public std::enable_shared_from_this<FeedsBrowserSplitViewController> {
public:
    /// Makes the panes on a responder chain of their own, which ends in the environment's: so what one pane sends reaches the next also
    /// before the window has the keyboard, as when a feed is revealed in a window that is about to be shown. The panes get their views, and
    /// load, afterwards.
    static std::shared_ptr<FeedsBrowserSplitViewController> make(FeedsBrowserEnvironment environment,
        std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem, std::shared_ptr<WebContainerView> webContainerView);

    FeedsBrowserSplitViewController(std::shared_ptr<FeedsBrowserFeedsViewController> feeds,
        std::shared_ptr<FeedsBrowserFeedArticlesViewController> articles, std::shared_ptr<FeedsBrowserArticleViewController> article)
        : _feedsViewController(std::move(feeds)), _articlesViewController(std::move(articles)), _articleViewController(std::move(article)) {
    }

    bool canCollapse = false; ///< whether a person may collapse panes
    std::array<SplitViewItem, 3> splitViewItems;

    FeedsBrowserFeedsViewController& feedsViewController() const { return *_feedsViewController; }
    FeedsBrowserFeedArticlesViewController& articlesViewController() const { return *_articlesViewController; }
    FeedsBrowserArticleViewController& articleViewController() const { return *_articleViewController; }

    /// Itself and the panes that take actions, as the application asks them while the window has the keyboard.
    ResponderChain::Handlers responders();

    bool canCollapseSubview(std::size_t) const { return canCollapse; }

    bool respondsTo(std::string_view action) const override;
    /// An action about nothing, or about an object of another class, does nothing.
    void perform(const Action& action) override;

private:
    const std::shared_ptr<FeedsBrowserFeedsViewController> _feedsViewController;
    const std::shared_ptr<FeedsBrowserFeedArticlesViewController> _articlesViewController;
    const std::shared_ptr<FeedsBrowserArticleViewController> _articleViewController;
};

} // namespace brindle
