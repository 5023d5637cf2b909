#pragma once

#include "SyndicatedParser/JSON.hpp"
#include "SyndicatedParser/SyndicatedFeedParser.hpp"

#include <memory>
#include <string_view>

namespace brindle {

/// Reads JSON Feed (jsonfeed.org), any version. Nothing is required: an object with none of the keys is an empty feed, and a value of
/// another type than the format has it counts as missing.
class SyndicatedJSONFeedParser : public SyndicatedFeedParser {
public:
    using SyndicatedFeedParser::SyndicatedFeedParser;

    void parse(CompletionHandler handler) override;

private:
    void readFeed(const JSON::Dictionary& json);
    std::shared_ptr<SyndicatedEntry> entry(const JSON::Dictionary& json) const;
    void readLinks(const JSON::Dictionary& json, SyndicatedEntry& entry) const;
    void readTexts(const JSON::Dictionary& json, SyndicatedEntry& entry) const;
    void readDates(const JSON::Dictionary& json, SyndicatedEntry& entry) const;
    Date dateOf(std::string_view text) const;
};

} // namespace brindle
