#pragma once

#include "Brindle/library/SavedArticlesManager.hpp"

namespace brindle {

/// Whether the same article is among the saved ones. Thread: main.
bool isSaved(const FeedItemArticle& article, const SavedArticlesManager& manager);

} // namespace brindle
