#include "Brindle/menu/ArticlePreview.hpp"

namespace brindle {

std::string previewText(const FeedItemArticle& article) {
    const auto& content = article.entry->content();
    return content ? content->strippedContent() : std::string();
}

} // namespace brindle
