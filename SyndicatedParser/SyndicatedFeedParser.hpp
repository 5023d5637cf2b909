#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "SyndicatedParser/SyndicatedFeedParserError.hpp"
#include "foundation/Date.hpp"
#include "foundation/SharedBytes.hpp"
#include "foundation/StringEncoding.hpp"
#include "foundation/XMLParser.hpp"

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

namespace brindle {

/// Carries one document through to its `SyndicatedFeed` and keeps the read state of entries over updates of the same feed. One parser, one
/// parse. Thread: any, one at a time.
class SyndicatedFeedParser {
public:
    using CompletionHandler = std::function<void(const SyndicatedFeedParserResult& result)>;

    /// `parseString` is the document's text, `usedStringEncoding` the encoding that decoded its bytes.
    SyndicatedFeedParser(std::shared_ptr<SyndicatedFeed> feed, SharedBytes parseString, StringEncoding usedStringEncoding,
        std::shared_ptr<const Clock> clock);
    virtual ~SyndicatedFeedParser();
    SyndicatedFeedParser(const SyndicatedFeedParser&) = delete;
    SyndicatedFeedParser& operator=(const SyndicatedFeedParser&) = delete;

    /// Fills the feed and reports to `handler` before it returns. A failure of the common steps is reported twice: by them and, once more,
    /// by the format's parser. Callers bear that. `handler` is not empty.
    virtual void parse(CompletionHandler handler);

protected:
    /// Makes `_xmlParser` read the document in the encoding that decoded it.
    void makeXMLParser();

    /// Takes the entries of the last update out of the feed, by their effective identifiers.
    void cacheEntries();

    /// Gives entries that were in the feed before their read state, where date and title allow it.
    void restoreEntryStates();

    const std::shared_ptr<SyndicatedFeed> _feed;
    const SharedBytes _parseString;
    const StringEncoding _usedStringEncoding;
    const std::shared_ptr<const Clock> _clock;
    CompletionHandler _completionHandler;
    std::string _xmlData;                  ///< what `_xmlParser` reads where that is not `_parseString` itself
    std::unique_ptr<XMLParser> _xmlParser; ///< of the XML formats only
    std::unordered_map<std::string, std::shared_ptr<SyndicatedEntry>> _cachedEntries;
};

} // namespace brindle
