#pragma once

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace brindle::bench {

/// Parses a detected document into a new feed: the number of its entries, absent for a failure.
inline std::optional<std::size_t> parse(
    SyndicatedFeedKind kind, std::string text, StringEncoding encoding, const std::shared_ptr<const Clock>& clock) {
    const auto feed = std::make_shared<SyndicatedFeed>(kind, clock->now());
    const auto parser = makeFeedParser(kind, feed, std::move(text), encoding, clock);
    bool failed = !parser;
    if (parser)
        parser->parse([&failed](const SyndicatedFeedParserResult& result) { failed = failed || !result; });
    return failed ? std::nullopt : std::optional(feed->entries.size());
}

/// The whole road of a fetched body: decoded, detected, rewritten and parsed.
inline std::optional<std::size_t> update(std::string_view bytes, const std::shared_ptr<const Clock>& clock) {
    DecodedDocument document = decodeDocument(std::string(bytes));
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    return parse(kind, std::move(document.text), document.encoding, clock);
}

} // namespace brindle::bench
