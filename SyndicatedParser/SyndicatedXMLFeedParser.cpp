#include "SyndicatedParser/SyndicatedXMLFeedParser.hpp"

#include "SyndicatedParser/HTMLStringMappings.hpp"
#include "foundation/Text.hpp"

#include <utility>

namespace brindle {

void SyndicatedXMLFeedParser::parse(CompletionHandler handler) {
    const auto fail = [&handler](std::optional<XMLParserError> error) {
        handler(tl::unexpected(SyndicatedFeedParserError{SyndicatedFeedParserError::Case::parseError, std::move(error)}));
    };
    SyndicatedFeedParser::parse(handler);
    // Kept as is: a failure of the common steps has been reported by them and is reported here again.
    if (!_xmlParser)
        return fail(std::nullopt);
    _xmlParser->delegate = this;
    _xmlParser->namedReferences = HTMLStringMappings::text;
    if (!_xmlParser->parse())
        return fail(_xmlParser->parserError());
    restoreEntryStates();
    if (_completionHandler)
        _completionHandler(_feed);
}

void SyndicatedXMLFeedParser::beginEntry() {
    _currentEntry = std::make_shared<SyndicatedEntry>(_clock->now());
    _currentEntry->feed = _feed;
}

void SyndicatedXMLFeedParser::endEntry() {
    if (_currentEntry)
        _feed->entries.push_back(std::exchange(_currentEntry, nullptr));
}

void SyndicatedXMLFeedParser::parserDidStartDocument() {
    _collectedCharacters.clear();
}

void SyndicatedXMLFeedParser::didStartElement(std::string_view name, const XMLAttributes& attributes) {
    startElement(feedElement(name), attributes);
}

void SyndicatedXMLFeedParser::didEndElement(std::string_view name) {
    // Kept as is: the latest block of the document stands in for every missing text behind it, not for that of its own element alone.
    if (_shouldCollectCharacters && !_cdata.empty() && text::trimmed(_collectedCharacters).empty())
        _collectedCharacters = _cdata;
    endElement(feedElement(name), _collectedCharacters);
    // The end of a child ends the collecting, and what came before it is lost.
    if (_shouldCollectCharacters) {
        _shouldCollectCharacters = false;
        _collectedCharacters.clear();
    }
}

void SyndicatedXMLFeedParser::foundCharacters(std::string_view text) {
    if (_shouldCollectCharacters)
        _collectedCharacters += text;
}

void SyndicatedXMLFeedParser::foundCDATA(std::string_view block) {
    if (isValidUTF8(block))
        _cdata = text::trimmed(block);
}

} // namespace brindle
