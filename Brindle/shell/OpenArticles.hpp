#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/URL.hpp"
#include "foundation/UserDefaults.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindle {

/// Whether a person is asked before so many articles are opened at once: from five on, where the preferences want that. Thread: main.
bool asksBeforeOpening(std::size_t articleCount, const UserDefaults& defaults);

/// An article that is opened, and the address that it is opened at.
struct OpenedArticle {
    std::shared_ptr<FeedItemArticle> article;
    URL url;
};

/// What is opened of a list of articles: those that have an address, in order. Thread: main.
std::vector<OpenedArticle> openedArticles(const std::vector<std::shared_ptr<FeedItemArticle>>& articles);

} // namespace brindle
