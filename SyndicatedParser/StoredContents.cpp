#include "SyndicatedParser/StoredContents.hpp"

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "foundation/RunLoop.hpp"

#include <array>
#include <utility>
#include <vector>

namespace brindle {

namespace {

/// The document that was read last: whoever asks for one text of a feed often asks for its neighbours.
struct LastRead {
    std::weak_ptr<const StoredContents> source;
    std::vector<std::string> texts;
};

LastRead& lastRead() {
    static LastRead last;
    return last;
}

using Texts = std::array<std::shared_ptr<SyndicatedContent>, 2>;

Texts textsOf(const SyndicatedEntry& entry) {
    return {entry.content(), entry.summary == entry.content() ? nullptr : entry.summary};
}

} // namespace

void StoredContents::takeFrom(const SyndicatedFeed& feed, std::shared_ptr<const Clock> clock) {
    const std::shared_ptr<const StoredContents> source(new StoredContents(feed, std::move(clock)));
    std::size_t number = 0;
    for (const std::shared_ptr<SyndicatedEntry>& entry : feed.entries) {
        for (const std::shared_ptr<SyndicatedContent>& content : textsOf(*entry)) {
            if (content)
                content->leaveTo(source, number);
            ++number;
        }
    }
}

std::string StoredContents::text(std::size_t number) const {
    assertMainThread();
    LastRead& last = lastRead();
    if (last.source.lock().get() != this) {
        last.texts = readTexts();
        last.source = weak_from_this();
    }
    return number < last.texts.size() ? last.texts[number] : std::string();
}

std::vector<std::string> StoredContents::readTexts() const {
    DecodedDocument document = decodeDocument(_document.bytes());
    // Detection rewrites, and the document was rewritten already when it was first read: read as it is, it gives the same texts.
    std::string rewritten = document.text;
    const SyndicatedFeedKind detected = detectFeedKind(rewritten);
    const auto feed = std::make_shared<SyndicatedFeed>(_kind, _clock->now());
    const auto parser = makeFeedParser(detected, feed, std::move(document.text), document.encoding, _clock);
    if (!parser)
        return {};
    parser->parse([](const SyndicatedFeedParserResult&) {});
    std::vector<std::string> texts;
    for (const std::shared_ptr<SyndicatedEntry>& entry : feed->entries) {
        for (const std::shared_ptr<SyndicatedContent>& content : textsOf(*entry))
            texts.push_back(content ? content->content() : std::string());
    }
    return texts;
}

} // namespace brindle
