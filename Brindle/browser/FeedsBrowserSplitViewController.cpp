#include "Brindle/browser/FeedsBrowserSplitViewController.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/CollectionArticles.hpp"

namespace brindle {

std::shared_ptr<FeedsBrowserSplitViewController> FeedsBrowserSplitViewController::make(FeedsBrowserEnvironment environment,
    std::shared_ptr<RemoveFeedToolbarItem> removeFeedToolbarItem, std::shared_ptr<WebContainerView> webContainerView) {
    const auto chain = std::make_shared<ResponderChain>();
    chain->setNext(std::exchange(environment.responderChain, chain));
    auto split = std::make_shared<FeedsBrowserSplitViewController>(
        FeedsBrowserFeedsViewController::make(environment, std::move(removeFeedToolbarItem)),
        FeedsBrowserFeedArticlesViewController::make(environment),
        FeedsBrowserArticleViewController::make(environment, std::move(webContainerView), false));
    chain->setHandlers(split->responders());
    return split;
}

ResponderChain::Handlers FeedsBrowserSplitViewController::responders() {
    return {weak_from_this(), _feedsViewController, _articleViewController};
}

bool FeedsBrowserSplitViewController::respondsTo(std::string_view action) const {
    return action == browseractions::showFeed || action == browseractions::showCollectionArticles || action == browseractions::showArticle;
}

void FeedsBrowserSplitViewController::perform(const Action& action) {
    const std::shared_ptr<Object> object = action.representedObject();
    if (action.name == browseractions::showFeed) {
        if (const auto feed = std::dynamic_pointer_cast<Feed>(object))
            _articlesViewController->showFeed(feed);
    } else if (action.name == browseractions::showCollectionArticles) {
        if (const auto collection = std::dynamic_pointer_cast<CollectionArticles>(object))
            _articlesViewController->showCollection(collection->articles);
    } else if (action.name == browseractions::showArticle) {
        if (const auto article = std::dynamic_pointer_cast<FeedItemArticle>(object))
            _articleViewController->showArticle(article);
    }
}

} // namespace brindle
