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

std::vector<URL> openedURLs(const std::vector<std::shared_ptr<FeedItemArticle>>& articles) {
    std::vector<URL> urls;
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        if (auto url = article->entry->preferredLinkURL())
            urls.push_back(*std::move(url));
    }
    return urls;
}

} // namespace brindle
