#include "Brindle/browser/FeedsBrowserFeedArticlesViewController.hpp"

#include "Brindle/browser/ArticleNameTableCellView.hpp"
#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/browser/FeedsOutlineCells.hpp"
#include "Brindle/browser/ImageTableCellView.hpp"
#include "foundation/RunLoop.hpp"
#include "platform/ObjectSender.hpp"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace brindle {

namespace {

using Self = FeedsBrowserFeedArticlesViewController;

constexpr double rowHeight = 32.0;

bool isAtOrBelow(const std::shared_ptr<Feed>& feed, const std::shared_ptr<Feed>& group) {
    auto each = feed;
    while (each && each != group)
        each = each->parent.lock();
    return each != nullptr;
}

bool isSameArticle(const std::shared_ptr<FeedItemArticle>& one, const std::shared_ptr<FeedItemArticle>& other) {
    return one == other || one->articleStateKey() == other->articleStateKey();
}

/// The list with what a feed has by the same keys in place of those of its articles that a parse has replaced. What it has no more stays.
Self::Articles renewed(Self::Articles list, const std::shared_ptr<FeedItem>& feed) {
    const std::weak_ptr<FeedItem> parsed = feed;
    const auto isOfFeed = [&](const std::shared_ptr<FeedItemArticle>& article) {
        return !article->feedItem.owner_before(parsed) && !parsed.owner_before(article->feedItem);
    };
    if (std::none_of(list.begin(), list.end(), isOfFeed))
        return list;
    const std::unordered_set<std::shared_ptr<FeedItemArticle>> present(feed->articles().begin(), feed->articles().end());
    std::unordered_map<std::string, std::shared_ptr<FeedItemArticle>> byKey;
    for (const std::shared_ptr<FeedItemArticle>& article : feed->articles())
        byKey.emplace(article->articleStateKey(), article);
    for (std::shared_ptr<FeedItemArticle>& article : list) {
        if (!isOfFeed(article) || present.contains(article))
            continue;
        if (const auto known = byKey.find(article->articleStateKey()); known != byKey.end())
            article = known->second;
    }
    return list;
}

} // namespace

std::shared_ptr<Self> FeedsBrowserFeedArticlesViewController::make(FeedsBrowserEnvironment environment) {
    std::shared_ptr<Self> controller(new Self(std::move(environment)));
    NotificationCenter& center = NotificationCenter::defaultCenter();
    const std::weak_ptr<Self> weak = controller;
    for (const std::string_view name : {notices::didUpdateFeed, notices::didReceiveNewArticles}) {
        controller->_tokens.push_back(center.addObserver(name, nullptr, [weak](const Notification& notification) {
            if (const auto self = weak.lock())
                self->didUpdateFeed(notices::subject(notification));
        }));
    }
    for (const std::string_view name :
        {SavedArticlesManager::didSaveArticleNotification, SavedArticlesManager::didUnsaveArticleNotification}) {
        controller->_tokens.push_back(center.addObserver(name, nullptr, [weak](const Notification&) {
            if (const auto self = weak.lock())
                self->refreshSavedMarks();
        }));
    }
    return controller;
}

FeedsBrowserFeedArticlesViewController::FeedsBrowserFeedArticlesViewController(FeedsBrowserEnvironment environment)
    : _environment(std::move(environment)) {}

void FeedsBrowserFeedArticlesViewController::viewDidLoad() {
    if (const auto table = articlesTableView.lock())
        table->setDataSource(weak_from_this());
}

void FeedsBrowserFeedArticlesViewController::viewDidAppear() {
    hideOrShowSourceColumn();
}

void FeedsBrowserFeedArticlesViewController::hideOrShowSourceColumn() {
    if (const auto table = articlesTableView.lock())
        table->setColumnHidden(sourceColumn, !_isCollection);
}

void FeedsBrowserFeedArticlesViewController::reloadArticles() {
    if (const auto table = articlesTableView.lock())
        table->reloadData();
}

void FeedsBrowserFeedArticlesViewController::showFeed(const std::shared_ptr<Feed>& feed) {
    setIsCollection(false);
    setArticles(feed ? _environment.feedsManager->articles(ArticleStateFilter::any, feed) : Articles(), feed);
}

void FeedsBrowserFeedArticlesViewController::showCollection(Articles articles) {
    setIsCollection(true);
    setArticles(std::move(articles), {});
}

void FeedsBrowserFeedArticlesViewController::showMatches(Articles articles) {
    setArticles(std::move(articles), {});
}

void FeedsBrowserFeedArticlesViewController::setIsCollection(bool isCollection) {
    _isCollection = isCollection;
    hideOrShowSourceColumn();
}

void FeedsBrowserFeedArticlesViewController::setArticles(Articles articles, std::weak_ptr<Feed> feed) {
    assertMainThread();
    _feedItemArticles = std::move(articles);
    _feed = std::move(feed);
    _shownAsRead.clear();
    for (const auto& article : _feedItemArticles)
        _shownAsRead.push_back(article->entry->isRead());
    reloadArticles();
}

/// Lists other articles in place of those there are, and reloads the rows that differ; all of them where an article has another place, so
/// that what is selected goes with it.
void FeedsBrowserFeedArticlesViewController::updateList(Articles articles) {
    if (!std::equal(articles.begin(), articles.end(), _feedItemArticles.begin(), _feedItemArticles.end(), isSameArticle))
        return setArticles(std::move(articles), _feed);
    const Articles before = std::exchange(_feedItemArticles, std::move(articles));
    const auto table = articlesTableView.lock();
    for (std::size_t row = 0; row < _feedItemArticles.size(); ++row) {
        const bool isRead = _feedItemArticles[row]->entry->isRead();
        const bool differs = before[row] != _feedItemArticles[row] || _shownAsRead[row] != isRead;
        _shownAsRead[row] = isRead;
        if (differs && table)
            table->reloadRow(row, {sourceColumn, statusColumn, nameColumn});
    }
}

void FeedsBrowserFeedArticlesViewController::didUpdateFeed(const std::shared_ptr<Object>& subject) {
    assertMainThread();
    if (const auto article = std::dynamic_pointer_cast<FeedItemArticle>(subject))
        return reloadRowOf(*article);
    const auto feed = std::dynamic_pointer_cast<Feed>(subject);
    const auto shown = _feed.lock();
    if (!feed)
        return;
    if (shown && (isAtOrBelow(feed, shown) || isAtOrBelow(shown, feed)))
        return updateList(_environment.feedsManager->articles(ArticleStateFilter::any, shown));
    if (shown)
        return;
    // Other lists keep what they have, though with the articles as they are now: so what a person reads does not move or go.
    const auto item = std::dynamic_pointer_cast<FeedItem>(feed);
    updateList(item ? renewed(_feedItemArticles, item) : _feedItemArticles);
}

void FeedsBrowserFeedArticlesViewController::reloadRowOf(const FeedItemArticle& article) {
    const auto place =
        std::find_if(_feedItemArticles.begin(), _feedItemArticles.end(), [&](const auto& each) { return each.get() == &article; });
    if (place == _feedItemArticles.end())
        return;
    const auto row = static_cast<std::size_t>(place - _feedItemArticles.begin());
    _shownAsRead[row] = article.entry->isRead();
    if (const auto table = articlesTableView.lock())
        table->reloadRow(row, {statusColumn, nameColumn});
}

void FeedsBrowserFeedArticlesViewController::refreshSavedMarks() {
    const auto table = articlesTableView.lock();
    if (!table)
        return;
    for (const std::size_t row : table->selectedRows())
        table->reloadRow(row, {nameColumn});
}

void FeedsBrowserFeedArticlesViewController::tableViewSelectionDidChange() {
    assertMainThread();
    const auto table = articlesTableView.lock();
    const auto row = table ? table->selectedRow() : std::nullopt;
    if (!row || *row >= _feedItemArticles.size())
        return;
    const std::shared_ptr<FeedItemArticle> article = _feedItemArticles[*row];
    if (!article->entry->isRead())
        markRead(*row);
    _environment.responderChain->perform(Action{browseractions::showArticle, std::make_shared<ObjectSender>(article)});
}

void FeedsBrowserFeedArticlesViewController::markRead(std::size_t row) {
    const std::shared_ptr<FeedItemArticle> article = _feedItemArticles[row];
    if (const auto feedItem = article->feedItem.lock())
        feedItem->markArticle(*article, ArticleStateFilter::read);
    _environment.refreshInterface();
    reloadRowOf(*article);
    notices::post(notices::didUpdateFeed, article);
}

double FeedsBrowserFeedArticlesViewController::heightOfRow(std::size_t) const {
    return rowHeight;
}

std::shared_ptr<TableCellView> FeedsBrowserFeedArticlesViewController::viewFor(std::string_view column, std::size_t row) const {
    if (row >= _feedItemArticles.size())
        return nullptr;
    const std::shared_ptr<FeedItemArticle>& article = _feedItemArticles[row];
    if (column == sourceColumn)
        return sourceCell(*article);
    if (column == statusColumn)
        return statusCell(*article);
    return column == nameColumn ? nameCell(article) : nullptr;
}

std::shared_ptr<TableCellView> FeedsBrowserFeedArticlesViewController::sourceCell(const FeedItemArticle& article) const {
    const auto cell = std::make_shared<ImageTableCellView>();
    cell->imageView.setImage(feedImage(article.feedItem.lock().get()));
    return cell;
}

std::shared_ptr<TableCellView> FeedsBrowserFeedArticlesViewController::statusCell(const FeedItemArticle& article) const {
    const auto cell = std::make_shared<ImageTableCellView>();
    if (!article.entry->isRead())
        cell->imageView.setImage(Image::named("NSImageNameStatusUnavailable"));
    return cell;
}

std::shared_ptr<TableCellView> FeedsBrowserFeedArticlesViewController::nameCell(const std::shared_ptr<FeedItemArticle>& article) const {
    const auto cell = std::make_shared<ArticleNameTableCellView>();
    cell->article = article;
    cell->nameTextField.setStringValue(article->entry->title);
    cell->savedImageView.setHidden(!_environment.savedArticlesManager->isSaved(*article));
    return cell;
}

} // namespace brindle
