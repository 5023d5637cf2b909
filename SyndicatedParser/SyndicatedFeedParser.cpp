#include "SyndicatedParser/SyndicatedFeedParser.hpp"

#include <utility>

namespace brindle {

SyndicatedFeedParser::SyndicatedFeedParser(
    std::shared_ptr<SyndicatedFeed> feed, SharedBytes parseString, StringEncoding usedStringEncoding, std::shared_ptr<const Clock> clock)
    : _feed(std::move(feed)), _parseString(std::move(parseString)), _usedStringEncoding(usedStringEncoding), _clock(std::move(clock)) {}

SyndicatedFeedParser::~SyndicatedFeedParser() = default;

void SyndicatedFeedParser::parse(CompletionHandler handler) {
    const auto fail = [&handler](SyndicatedFeedParserError::Case kind) {
        handler(tl::unexpected(SyndicatedFeedParserError{kind, std::nullopt}));
    };
    if (_parseString.empty())
        return fail(SyndicatedFeedParserError::Case::emptyString);
    switch (_feed->kind) {
    case SyndicatedFeedKind::rss:
    case SyndicatedFeedKind::rdf:
    case SyndicatedFeedKind::atom:
        makeXMLParser();
        break;
    case SyndicatedFeedKind::unknown:
    case SyndicatedFeedKind::html:
    case SyndicatedFeedKind::opml:
        return fail(SyndicatedFeedParserError::Case::invalidFeed);
    case SyndicatedFeedKind::json:
        break;
    }
    cacheEntries();
    _completionHandler = std::move(handler);
}

void SyndicatedFeedParser::makeXMLParser() {
    std::string_view data = _parseString;
    if (_usedStringEncoding != StringEncoding::utf8) {
        _xmlData = encodeMarkup(_parseString, _usedStringEncoding);
        data = _xmlData;
    }
    _xmlParser = std::make_unique<XMLParser>(data, _usedStringEncoding);
}

void SyndicatedFeedParser::cacheEntries() {
    if (_feed->entries.empty())
        return;
    _cachedEntries.clear();
    for (const std::shared_ptr<SyndicatedEntry>& entry : _feed->entries)
        _cachedEntries.insert_or_assign(entry->effectiveIdentifier(), entry);
    _feed->entries.clear();
}

void SyndicatedFeedParser::restoreEntryStates() {
    for (const std::shared_ptr<SyndicatedEntry>& entry : _feed->entries) {
        entry->setState(SyndicatedEntry::State::unread);
        if (_cachedEntries.empty())
            continue;
        const auto found = _cachedEntries.find(entry->effectiveIdentifier());
        if (found == _cachedEntries.end())
            continue;
        // Kept as is: an entry stays read when its date has moved forward, and comes back unread when it has not.
        const SyndicatedEntry& cached = *found->second;
        if (cached.dateUpdated < entry->dateUpdated && cached.title == entry->title)
            entry->setState(cached.state());
    }
    _cachedEntries.clear();
}

} // namespace brindle
