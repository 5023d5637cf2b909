#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "SyndicatedParser/SyndicatedFeedParserError.hpp"
#include "foundation/Date.hpp"
#include "foundation/StringEncoding.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::testsupport {

/// What a parser made of a text.
struct FeedReading {
    std::shared_ptr<SyndicatedFeed> feed;
    std::vector<SyndicatedFeedParserResult> calls;

    /// The calls by name: "success", "emptyString", "parseError", "invalidFeed".
    std::vector<std::string> outcomes() const;
    const SyndicatedEntry& entry(std::size_t index = 0) const { return *feed->entries.at(index); }
};

/// 2020-06-01T12:00:00Z, the present moment of all readings that are not told another.
Date presentMoment();

Date date(std::string_view iso8601);

std::shared_ptr<SyndicatedFeed> emptyFeed(SyndicatedFeedKind kind);

/// Gives `text` as it is to the parser for `kind`, with `feed` to fill.
FeedReading readInto(std::shared_ptr<SyndicatedFeed> feed, SyndicatedFeedKind kind, std::string text, Date now = presentMoment(),
    StringEncoding encoding = StringEncoding::utf8);

/// Gives `text` as it is to the parser for `kind`, with a new feed of that kind.
FeedReading read(SyndicatedFeedKind kind, std::string text);

FeedReading readRSS(std::string channel);
FeedReading readRSSItem(std::string item);
FeedReading readAtom(std::string content);
FeedReading readAtomEntry(std::string entry);
FeedReading readJSON(std::string text);

/// All that a feed has, as texts, but its kind, its entries and its data.
std::vector<std::string> fields(const SyndicatedFeed& feed);

/// All that an entry has, as texts, but its feed.
std::vector<std::string> fields(const SyndicatedEntry& entry);

} // namespace brindle::testsupport
