#include "Brindle/browser/SavedArticleTest.hpp"

#include <algorithm>
#include <string>

namespace brindle {

bool isSaved(const FeedItemArticle& article, const SavedArticlesManager& manager) {
    const std::string identifier = article.entry->effectiveIdentifier();
    return std::any_of(manager.savedArticles.begin(), manager.savedArticles.end(),
        [&](const auto& saved) { return saved->entry->effectiveIdentifier() == identifier; });
}

} // namespace brindle
