#pragma once

#include "SyndicatedParser/SyndicatedFeedParser.hpp"

#include <memory>

namespace brindle {

/// The parser for a detected kind; null for kinds that no parser reads. `feed` may be of another kind. Thread: any.
std::unique_ptr<SyndicatedFeedParser> makeFeedParser(SyndicatedFeedKind detected, std::shared_ptr<SyndicatedFeed> feed, SharedBytes text,
    StringEncoding encoding, std::shared_ptr<const Clock> clock);

} // namespace brindle
