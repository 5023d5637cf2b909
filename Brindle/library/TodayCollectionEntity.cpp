#include "Brindle/library/TodayCollectionEntity.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "foundation/Calendar.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace brindle {

TodayCollectionEntity::TodayCollectionEntity(std::weak_ptr<const FeedsManager> feedsManager, std::shared_ptr<const Clock> clock)
    : CollectionEntity(localized("Today")), _feedsManager(std::move(feedsManager)), _clock(std::move(clock)) {
    TodayCollectionEntity::refresh();
}

void TodayCollectionEntity::refresh() {
    assertMainThread();
    const auto feedsManager = _feedsManager.lock();
    if (!feedsManager)
        fatalError("The articles of today need a library.");
    const DateInterval today = Calendar::day(_clock->now());
    // Dates are sorted beside their articles: to look each up for every comparison takes most of the time in a large library.
    std::vector<std::pair<Date, const std::shared_ptr<FeedItemArticle>*>> found;
    const auto items = FeedsManager::items(feedsManager->feeds);
    for (const std::shared_ptr<FeedItem>& item : items) {
        for (const std::shared_ptr<FeedItemArticle>& article : item->articles()) {
            if (today.contains(article->entry->dateUpdated))
                found.emplace_back(article->entry->dateUpdated, &article);
        }
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    Entities articles;
    articles.reserve(found.size());
    for (const auto& [date, article] : found)
        articles.push_back(*article);
    setEntities(std::move(articles));
}

} // namespace brindle
