#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/Object.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// The articles of a collection as what an action is about.
class CollectionArticles : public Object {
public:
    explicit CollectionArticles(std::vector<std::shared_ptr<FeedItemArticle>> list) : articles(std::move(list)) {}

    const std::vector<std::shared_ptr<FeedItemArticle>> articles;
};

} // namespace brindle
