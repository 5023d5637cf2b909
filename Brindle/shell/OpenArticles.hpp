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

/// What is opened of a list of articles: the address of each that has one, in order. Thread: main.
std::vector<URL> openedURLs(const std::vector<std::shared_ptr<FeedItemArticle>>& articles);

} // namespace brindle
