#include "Brindle/menu/ArticleCounts.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"

#include <algorithm>
#include <memory>
#include <vector>

namespace brindle {

namespace {

/// A list of the tree that is being counted.
struct Level {
    const FeedsManager::Feeds* feeds = nullptr;
    const Feed* group = nullptr; ///< null for the list at the top
    std::size_t next = 0;
    ArticleCounts::Count sum = {};
};

ArticleCounts::Count countOf(const FeedItem& item) {
    const auto& articles = item.articles();
    const auto read = std::count_if(articles.begin(), articles.end(), [](const auto& article) { return article->entry->isRead(); });
    return {articles.size() - static_cast<std::size_t>(read), static_cast<std::size_t>(read)};
}

} // namespace

ArticleCounts::Count& ArticleCounts::Count::operator+=(const Count& other) {
    unread += other.unread;
    read += other.read;
    return *this;
}

ArticleCounts::ArticleCounts(const FeedsManager::Feeds& list) {
    std::vector<Level> open = {{&list}};
    while (!open.empty()) {
        Level& level = open.back();
        if (level.next == level.feeds->size()) {
            const Level done = level;
            open.pop_back();
            if (done.group)
                _counts[done.group] = done.sum;
            (open.empty() ? _total : open.back().sum) += done.sum;
            continue;
        }
        const Feed& feed = *(*level.feeds)[level.next++];
        if (feed.kind == Feed::Kind::item)
            level.sum += _counts[&feed] = countOf(static_cast<const FeedItem&>(feed));
        else if (feed.kind == Feed::Kind::group)
            open.push_back({&static_cast<const FeedGroup&>(feed).feeds(), &feed});
    }
}

std::optional<ArticleCounts::Count> ArticleCounts::of(const Feed& feed) const {
    const auto found = _counts.find(&feed);
    return found == _counts.end() ? std::nullopt : std::optional(found->second);
}

} // namespace brindle
