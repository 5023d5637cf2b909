#pragma once

#include "SyndicatedParser/SyndicatedXMLFeedParser.hpp"

#include <string>

namespace brindle {

/// Reads RSS 2.0 and its relatives, and RDF (RSS 1.0): the same elements under the same names, wherever the items stand.
class SyndicatedRSSFeedParser : public SyndicatedXMLFeedParser {
public:
    using SyndicatedXMLFeedParser::SyndicatedXMLFeedParser;

private:
    void startElement(FeedElement element, const XMLAttributes& attributes) override;
    void endElement(FeedElement element, const std::string& collectedText) override;
    void readEnclosure(const XMLAttributes& attributes);
    void endChannelElement(FeedElement element, const std::string& collectedText);
    void endItemElement(FeedElement element, const std::string& collectedText);

    bool _channelTag = false;
    bool _itemTag = false; ///< the entry under construction is there
};

} // namespace brindle
