#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace brindle {

/// Finds articles by their titles. A title is folded when it is first searched, and kept in that form for as long as its feed has the same
/// articles. Thread: main.
class ArticleSearch {
public:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

    /// Folds the titles of all articles of the library, so that the first search is as fast as those after it.
    void prepare(const FeedsManager& feedsManager);
    /// The articles of the library, in tree order, whose title contains the term, case and diacritics aside; none for a term that has
    /// nothing else in it.
    Articles articles(const FeedsManager& feedsManager, std::string_view term);

private:
    /// The folded titles of one feed's articles.
    struct Titles {
        std::vector<std::weak_ptr<FeedItemArticle>> articles;
        std::string text;              ///< one title after another
        std::vector<std::size_t> ends; ///< of each title in `text`

        bool areOf(const Articles& list) const;
        static Titles fold(const Articles& list);
    };

    std::unordered_map<const FeedItem*, Titles> _titles; ///< of the feeds that the library had last
};

} // namespace brindle
