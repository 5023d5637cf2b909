#include "desktop/windows/ArticleNavigator.hpp"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

ArticleNavigator::ArticleNavigator(std::shared_ptr<const FeedsManager> feedsManager, const FeedsBrowserSplitViewController& panes,
    QtTableView& table, ArticleContainer& container)
    : _feedsManager(std::move(feedsManager)), _panes(panes), _table(table), _container(container) {}

/// Whether there was one from a row on to another.
bool ArticleNavigator::selectUnread(std::size_t from, std::size_t to) {
    const auto& articles = _panes.articlesViewController().feedItemArticles();
    for (std::size_t row = from; row < std::min(to, articles.size()); ++row) {
        if (!articles[row]->entry->isRead()) {
            _table.selectRow(row);
            return true;
        }
    }
    return false;
}

void ArticleNavigator::showNextUnread() {
    const std::size_t count = _panes.articlesViewController().feedItemArticles().size();
    const auto selected = _table.selectedRow();
    const std::size_t next = selected ? *selected + 1 : 0;
    if (!selectUnread(next, count) && !selectUnread(0, next))
        showNextUnreadFeed();
}

void ArticleNavigator::showNextUnreadFeed() {
    // While a search hides the feeds, what it found is all there is to go through.
    if (_panes.splitViewItems.front().isCollapsed())
        return;
    FeedsBrowserFeedsViewController& feeds = _panes.feedsViewController();
    std::vector<std::shared_ptr<FeedItem>> items = FeedsManager::items(_feedsManager->feeds);
    const auto current = std::find(items.begin(), items.end(), feeds.selectedFeed());
    if (current != items.end())
        std::rotate(items.begin(), current + 1, items.end());
    const auto next = std::find_if(
        items.begin(), items.end(), [&](const auto& item) { return !_feedsManager->articles(ArticleStateFilter::unread, item).empty(); });
    if (next == items.end())
        return;
    feeds.reveal(*next);
    selectUnread(0, _panes.articlesViewController().feedItemArticles().size());
}

void ArticleNavigator::pageDown() {
    const auto shown = _container.shown();
    if (!shown || !_panes.articleViewController().article())
        return showNextUnread();
    shown->scrollPage(true, [self = QPointer(this), asked = std::weak_ptr(shown)](bool wasAtEnd) {
        // Another article may be shown by the time the page answers.
        if (self && wasAtEnd && self->_container.shown() == asked.lock())
            self->showNextUnread();
    });
}

void ArticleNavigator::pageUp() {
    if (const auto shown = _container.shown())
        shown->scrollPage(false, {});
}

} // namespace brindle::desktop
