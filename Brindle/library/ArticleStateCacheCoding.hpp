#pragma once

#include "Brindle/library/FeedItem.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// The stored form of a feed's read states: a binary property list, a dictionary from text to integer, its keys in byte order. Thread: any.
std::string encodeArticleStates(const ArticleStateCache& states);

/// Reads either form of property list. Absent when the root is no dictionary, or any value no whole number (booleans count as 0 and 1).
std::optional<ArticleStateCache> decodeArticleStates(std::string_view bytes);

} // namespace brindle
