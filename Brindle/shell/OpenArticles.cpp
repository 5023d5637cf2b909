#include "Brindle/shell/OpenArticles.hpp"

#include "Brindle/library/PreferenceKeys.hpp"

#include <utility>

namespace brindle {

namespace {

constexpr std::size_t manyArticles = 5;

} // namespace

bool asksBeforeOpening(std::size_t articleCount, const UserDefaults& defaults) {
    return articleCount >= manyArticles && defaults.boolForKey(preference::warnWhenOpeningArticles);
}

std::vector<OpenedArticle> openedArticles(const std::vector<std::shared_ptr<FeedItemArticle>>& articles) {
    std::vector<OpenedArticle> opened;
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        if (auto url = article->entry->preferredLinkURL())
            opened.push_back({article, *std::move(url)});
    }
    return opened;
}

} // namespace brindle
