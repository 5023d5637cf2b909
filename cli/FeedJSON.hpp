#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"

#include <nlohmann/json.hpp>

namespace brindle {

/// A feed with all that it holds but its stored document. Keys in a fixed order, dates as `iso8601String` writes them, what is absent as
/// null; categories, and all lists of an entry, are sorted by their own JSON text, so that equal feeds give equal texts. Thread: that of
/// the feed.
nlohmann::ordered_json feedJSON(const SyndicatedFeed& feed);

nlohmann::ordered_json linkJSON(const SyndicatedLink& link);

} // namespace brindle
