// The whole road of an update: a body decoded, detected, rewritten and parsed, twice into one feed, so that states are restored as well.
#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "foundation/Console.hpp"
#include "fuzz/Fuzzing.hpp"

using namespace brindle;

namespace {

void parse(SyndicatedFeedKind kind, const std::shared_ptr<SyndicatedFeed>& feed, const SharedBytes& text, StringEncoding encoding) {
    const auto clock = std::make_shared<FixedClock>(Date());
    const auto parser = makeFeedParser(kind, feed, text, encoding, clock);
    int calls = 0;
    if (parser)
        parser->parse([&calls](const SyndicatedFeedParserResult&) { ++calls; });
    fuzz::require(!parser || calls > 0);
}

/// What the rest of the program asks of a parsed feed.
void use(const SyndicatedFeed& feed) {
    static_cast<void>(feed.primaryURL());
    for (const auto& entry : feed.entries) {
        static_cast<void>(entry->effectiveIdentifier());
        if (entry->content())
            static_cast<void>(entry->content()->strippedContent());
        entry->setIsRead(true);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Console::redirect([](std::string_view) {});
    DecodedDocument document = decodeDocument(std::string(fuzz::view(data, size)));
    const SharedBytes fetched(document.text);
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    const SharedBytes text(std::move(document.text));
    const auto feed = std::make_shared<SyndicatedFeed>(kind, Date());
    for (int update = 0; update < 2; ++update) {
        parse(kind, feed, text, document.encoding);
        use(*feed);
    }
    // The strict reader has to bear what was not rewritten as well.
    for (const SyndicatedFeedKind named : {SyndicatedFeedKind::rss, SyndicatedFeedKind::atom, SyndicatedFeedKind::json})
        parse(named, std::make_shared<SyndicatedFeed>(named, Date()), fetched, document.encoding);
    return 0;
}
