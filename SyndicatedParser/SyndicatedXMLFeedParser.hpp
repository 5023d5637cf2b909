#pragma once

#include "SyndicatedParser/FeedElement.hpp"
#include "SyndicatedParser/SyndicatedFeedParser.hpp"
#include "foundation/XMLParser.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// What the parsers of the XML formats share: a flat machine over the events of the document, without a notion of depth, that collects the
/// text of some elements.
class SyndicatedXMLFeedParser : public SyndicatedFeedParser, private XMLParserDelegate {
public:
    using SyndicatedFeedParser::SyndicatedFeedParser;

    void parse(CompletionHandler handler) override;

protected:
    virtual void startElement(FeedElement element, const XMLAttributes& attributes) = 0;

    /// `collectedText` is the element's text, or the CDATA block that stands in for it; empty where no text was collected.
    virtual void endElement(FeedElement element, const std::string& collectedText) = 0;

    /// Collects text from here to the next end tag.
    void collectCharacters() { _shouldCollectCharacters = true; }

    void beginEntry();

    /// Moves the entry under construction, if any, into the feed.
    void endEntry();

    std::shared_ptr<SyndicatedEntry> _currentEntry; ///< the entry under construction

private:
    void parserDidStartDocument() final;
    void didStartElement(std::string_view name, const XMLAttributes& attributes) final;
    void didEndElement(std::string_view name) final;
    void foundCharacters(std::string_view text) final;
    void foundCDATA(std::string_view block) final;

    bool _shouldCollectCharacters = false;
    std::string _collectedCharacters;
    std::string _cdata; ///< the latest block, trimmed
};

} // namespace brindle
