#pragma once

#include "SyndicatedParser/SyndicatedXMLFeedParser.hpp"

#include <memory>
#include <string>

namespace brindle {

/// Reads Atom (RFC 4287).
class SyndicatedAtomFeedParser : public SyndicatedXMLFeedParser {
public:
    using SyndicatedXMLFeedParser::SyndicatedXMLFeedParser;

private:
    void startElement(FeedElement element, const XMLAttributes& attributes) override;
    void endElement(FeedElement element, const std::string& collectedText) override;
    void startFeedElement(FeedElement element, const XMLAttributes& attributes);
    void startEntryElement(FeedElement element, const XMLAttributes& attributes);
    void readEntryLink(const XMLAttributes& attributes);
    void endFeedElement(FeedElement element, const std::string& collectedText);
    void endEntryElement(FeedElement element, const std::string& collectedText);

    bool _entryTag = false;                             ///< the entry under construction is there
    std::shared_ptr<SyndicatedContent> _currentContent; ///< opened by a start tag, waiting for its text
};

} // namespace brindle
