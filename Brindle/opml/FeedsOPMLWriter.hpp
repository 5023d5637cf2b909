#pragma once

#include "Brindle/library/Feed.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// Writes the library's tree as OPML 1.0. With groups kept, each is an outline around its entries; without, their entries stand in their
/// place. Separators are left out.
///
/// Kept as is: nothing is escaped, so that a name with "&", "<" or a quote makes a document that is no well-formed XML. Thread: main.
class FeedsOPMLWriter {
public:
    using Feeds = std::vector<std::shared_ptr<Feed>>;

    /// The whole document, UTF-8; absent when a name or `title` is not UTF-8.
    static std::optional<std::string> document(const Feeds& feeds, std::string_view title, bool keepsGroups);

    /// Writes the document to `file`, titled by that name without its extension. False when nothing was written; the reason is printed,
    /// but for a text that is not UTF-8.
    static bool exportFeeds(const Feeds& feeds, const std::filesystem::path& file, bool keepsGroups);
};

} // namespace brindle
