#pragma once

#include "Brindle/library/FeedItemArticle.hpp"

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace brindle {

using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

/// An article as the commands print it; `feed` is null for one whose feed is gone. Thread: main.
nlohmann::ordered_json articleJSON(const FeedItemArticle& article);

/// An array of the above.
nlohmann::ordered_json articlesJSON(const Articles& articles);

/// The same for people: a table, one line for each article.
std::string articleTable(const Articles& articles);

} // namespace brindle
