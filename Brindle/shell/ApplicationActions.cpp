#include "Brindle/shell/ApplicationActions.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/OpenArticles.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <iterator>

namespace brindle {

void ApplicationActions::markArticles(const Action& action, ArticleStateFilter state) {
    assertMainThread();
    if (const auto feed = std::dynamic_pointer_cast<Feed>(action.representedObject()))
        return markFeed(feed, state);
    const FeedsManager::Feeds feeds = _environment.feedsManager->feeds; // observers of the notices may change the list
    for (const std::shared_ptr<Feed>& feed : feeds)
        markFeed(feed, state);
}

void ApplicationActions::markFeed(const std::shared_ptr<Feed>& feed, ArticleStateFilter state) {
    _environment.feedsManager->markArticles(state, feed);
    _environment.refreshInterface();
    notices::post(notices::didUpdateFeed, feed);
}

void ApplicationActions::openAllUnreadArticles(const Action& action) {
    assertMainThread();
    const auto feed = std::dynamic_pointer_cast<Feed>(action.representedObject());
    Articles articles = _environment.feedsManager->articles(ArticleStateFilter::unread, feed);
    if (!asksBeforeOpening(articles.size(), *_environment.defaults))
        return openArticles(articles);
    _application->activate();
    const Alert question = {localized("Open Articles?"),
        localized("You are about to open ") + std::to_string(articles.size()) + localized(" articles. Do you want to continue?"),
        {localized("Yes"), localized("Cancel")}};
    _environment.alerts->beginSheet(question, [actions = weak_from_this(), articles = std::move(articles)](int response) {
        if (const auto self = actions.lock(); self && response == Alert::firstButtonReturn)
            self->openArticles(articles);
    });
}

void ApplicationActions::openArticles(const Articles& articles) {
    std::vector<std::shared_ptr<FeedItem>> changed;
    for (const auto& [article, url] : openedArticles(articles)) {
        _environment.workspace->openURL(url);
        const auto feedItem = article->feedItem.lock();
        if (!feedItem || article->entry->isRead())
            continue;
        feedItem->markArticle(*article, ArticleStateFilter::read);
        // The articles of a feed stand together.
        if (changed.empty() || changed.back() != feedItem)
            changed.push_back(feedItem);
    }
    _environment.refreshInterface();
    for (const std::shared_ptr<FeedItem>& feedItem : changed)
        notices::post(notices::didUpdateFeed, feedItem);
}

void ApplicationActions::showArticle(const Action& action) {
    assertMainThread();
    const auto article = std::dynamic_pointer_cast<FeedItemArticle>(action.representedObject());
    if (!article)
        return;
    const auto& enclosures = article->entry->enclosures;
    const auto playable = std::find_if(enclosures.begin(), enclosures.end(), [](const SyndicatedEnclosure& enclosure) {
        return enclosure.kind == SyndicatedEnclosure::Kind::audio || enclosure.kind == SyndicatedEnclosure::Kind::video;
    });
    if (_environment.defaults->integerForKey(preference::articlesOpensSelectedIndex) != 0 && playable != enclosures.end())
        showEnclosure(*playable, article->entry->title);
    else
        openArticle(article);
    if (article->entry->isRead())
        return;
    if (const auto feedItem = article->feedItem.lock())
        feedItem->markArticle(*article, ArticleStateFilter::read);
    _environment.refreshInterface();
    notices::post(notices::didUpdateFeed, article);
}

void ApplicationActions::openArticle(const std::shared_ptr<FeedItemArticle>& article) {
    if (opensInBrowser(preference::allowFBOpenArticles))
        _windows->showArticle(_environment, article);
    else if (const auto url = article->entry->preferredLinkURL())
        _environment.workspace->openURL(*url);
}

bool ApplicationActions::opensInBrowser(std::string_view preferenceKey) const {
    return _environment.defaults->boolForKey(preferenceKey) != _application->isShiftKeyDown();
}

void ApplicationActions::openFeed(const Action& action) {
    assertMainThread();
    const auto feed = std::dynamic_pointer_cast<Feed>(action.representedObject());
    if (!feed)
        return;
    const auto feedItem = std::dynamic_pointer_cast<FeedItem>(feed);
    if (!feedItem || opensInBrowser(preference::allowFBOpenFeed))
        return revealInFeedsBrowser(feed);
    if (const auto url = feedItem->session().feed()->primaryURL())
        _environment.workspace->openURL(*url);
}

void ApplicationActions::revealInFeedsBrowser(const std::shared_ptr<Feed>& feed) {
    _application->activate();
    const auto browser = _windows->feedsBrowser(_environment);
    if (!browser)
        return;
    browser->selectedFeed = feed;
    browser->showWindow();
}

void ApplicationActions::newSeparator() {
    assertMainThread();
    const auto separator = FeedSeparator::make();
    FeedsManager& feedsManager = *_environment.feedsManager;
    feedsManager.addFeed(separator, std::ssize(feedsManager.feeds));
    notices::post(notices::didAddFeed, separator);
    _environment.refreshInterface();
}

void ApplicationActions::showFeedsBrowser() {
    assertMainThread();
    activateIfHiddenInDock();
    if (_windows->feedsBrowser(_environment))
        revealInFeedsBrowser(nullptr);
}

/// The desktop does not bring a program to the front that has no place in the dock.
void ApplicationActions::activateIfHiddenInDock() {
    if (_environment.defaults->boolForKey(preference::hideInDock))
        _application->activate();
}

void ApplicationActions::showEnclosure(const SyndicatedEnclosure& enclosure, const std::string& title) {
    const auto player = _windows->mediaPlayer();
    if (!player)
        return;
    player->setURL(enclosure.url);
    player->setTitle(title);
    player->showWindow();
}

} // namespace brindle
