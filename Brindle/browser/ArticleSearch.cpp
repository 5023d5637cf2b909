#include "Brindle/browser/ArticleSearch.hpp"

#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/RunLoop.hpp"
#include "foundation/Text.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

/// Compares what the pointers own, which outlives the articles: an article at the address of one that is gone is another.
bool ArticleSearch::Titles::areOf(const Articles& list) const {
    return std::equal(articles.begin(), articles.end(), list.begin(), list.end(),
        [](const auto& known, const auto& article) { return !known.owner_before(article) && !article.owner_before(known); });
}

ArticleSearch::Titles ArticleSearch::Titles::fold(const Articles& list) {
    Titles titles;
    titles.articles.assign(list.begin(), list.end());
    titles.ends.reserve(list.size());
    for (const std::shared_ptr<FeedItemArticle>& article : list) {
        titles.text += text::folded(article->entry->title);
        titles.ends.push_back(titles.text.size());
    }
    return titles;
}

void ArticleSearch::prepare(const FeedsManager& feedsManager) {
    assertMainThread();
    std::unordered_map<const FeedItem*, Titles> titles;
    for (const std::shared_ptr<FeedItem>& item : FeedsManager::items(feedsManager.feeds)) {
        auto known = _titles.extract(item.get());
        if (known && known.mapped().areOf(item->articles()))
            titles.insert(std::move(known));
        else
            titles.emplace(item.get(), Titles::fold(item->articles()));
    }
    _titles = std::move(titles);
}

ArticleSearch::Articles ArticleSearch::articles(const FeedsManager& feedsManager, std::string_view term) {
    const std::string wanted = text::folded(term);
    Articles found;
    if (wanted.empty())
        return found;
    prepare(feedsManager);
    for (const std::shared_ptr<FeedItem>& item : FeedsManager::items(feedsManager.feeds)) {
        const Titles& titles = _titles[item.get()];
        std::size_t begin = 0;
        for (std::size_t i = 0; i < titles.ends.size(); ++i) {
            const std::string_view title = std::string_view(titles.text).substr(begin, titles.ends[i] - begin);
            if (title.find(wanted) != std::string_view::npos)
                found.push_back(item->articles()[i]);
            begin = titles.ends[i];
        }
    }
    return found;
}

} // namespace brindle
