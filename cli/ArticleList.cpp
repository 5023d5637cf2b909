#include "cli/ArticleList.hpp"

#include "Brindle/library/ArticleStateFilter.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "cli/TextTable.hpp"
#include "foundation/Date.hpp"

#include <string_view>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

/// What the table calls an article.
std::string_view stateName(const FeedItemArticle& article) {
    return name(article.entry->isRead() ? ArticleStateFilter::read : ArticleStateFilter::unread);
}

} // namespace

JSON articleJSON(const FeedItemArticle& article) {
    const auto feed = article.feedItem.lock();
    const auto url = article.entry->preferredLinkURL();
    JSON json = JSON::object();
    json["feed"] = feed ? JSON(feed->uuid.uuidString()) : JSON();
    json["title"] = article.entry->title;
    json["url"] = url ? JSON(url->absoluteString()) : JSON();
    json["state"] = stateName(article);
    json["dateUpdated"] = iso8601String(article.entry->dateUpdated);
    json["key"] = article.articleStateKey();
    return json;
}

JSON articlesJSON(const Articles& articles) {
    JSON array = JSON::array();
    for (const std::shared_ptr<FeedItemArticle>& article : articles)
        array.push_back(articleJSON(*article));
    return array;
}

std::string articleTable(const Articles& articles) {
    TextTable table({"Updated", "State", "Feed", "Title", "Address"});
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        const auto feed = article->feedItem.lock();
        const auto url = article->entry->preferredLinkURL();
        table.add({iso8601String(article->entry->dateUpdated), std::string(stateName(*article)), feed ? feed->name() : std::string(),
            article->entry->title, url ? url->absoluteString() : std::string()});
    }
    return table.text();
}

} // namespace brindle
