#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "SyndicatedParser/SyndicatedFeedParserError.hpp"
#include "foundation/Date.hpp"
#include "foundation/StringEncoding.hpp"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// Reads documents one after another into one feed, as the fetches of one session do: each is decoded, detected and parsed, and an entry
/// that was in the document before keeps its read state. Thread: any, one at a time.
class DocumentSequence {
public:
    enum class Outcome { finished, noData, invalidFeed, html };

    struct Result {
        StringEncoding encoding = StringEncoding::utf8;
        std::optional<SyndicatedFeedKind> detected; ///< absent where nothing was detected
        std::vector<std::string_view> handlerCalls; ///< what the parser reported, call by call
        Outcome outcome = Outcome::invalidFeed;
    };

    /// With a `kind` the documents are not detected: each goes as it is to that kind's parser.
    DocumentSequence(std::optional<SyndicatedFeedKind> kind, std::shared_ptr<const Clock> clock);

    Result read(std::string bytes);

    /// The feed after the latest document, also after one that failed.
    const SyndicatedFeed& feed() const { return *_feed; }

    /// Sets every entry with that effective identifier to read.
    void markRead(std::string_view effectiveIdentifier);

private:
    void parse(SyndicatedFeedKind kind, std::string text, Result& result);

    const std::optional<SyndicatedFeedKind> _kind;
    const std::shared_ptr<const Clock> _clock;
    std::shared_ptr<SyndicatedFeed> _feed;
};

/// "finished", "noData", "invalidFeed", "html".
std::string_view name(DocumentSequence::Outcome outcome);

/// "rss", "rdf", "atom", "html", "opml", "json", "unknown".
std::string kindName(SyndicatedFeedKind kind);

} // namespace brindle
