#include "tests/SyndicatedParser/FeedReading.hpp"

#include "SyndicatedParser/FeedParserFactory.hpp"
#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/UserLocale.hpp"

#include <gtest/gtest.h>

namespace brindle::testsupport {

namespace {

/// The outcome of a date must not depend on who runs the tests, nor where.
class UserLocaleEnvironment : public testing::Environment {
public:
    void SetUp() override {
        ASSERT_TRUE(setUserLocale("en_US"));
        ASSERT_TRUE(setUserTimeZone("UTC"));
    }
};

[[maybe_unused]] const testing::Environment* const userLocaleEnvironment = testing::AddGlobalTestEnvironment(new UserLocaleEnvironment);

std::string name(SyndicatedFeedParserError::Case kind) {
    switch (kind) {
    case SyndicatedFeedParserError::Case::parseError:
        return "parseError";
    case SyndicatedFeedParserError::Case::emptyString:
        return "emptyString";
    case SyndicatedFeedParserError::Case::invalidFeed:
        break;
    }
    return "invalidFeed";
}

std::string text(Date date) {
    return std::to_string(date.time_since_epoch().count());
}

std::string text(const SyndicatedLink& link) {
    return (link.url ? link.url->absoluteString() : "none") + ' ' + link.title + ' ' + std::string(brindle::name(link.relation)) + ' ' +
           std::to_string(link.length);
}

} // namespace

std::vector<std::string> FeedReading::outcomes() const {
    std::vector<std::string> names;
    for (const SyndicatedFeedParserResult& call : calls)
        names.push_back(call ? "success" : name(call.error().kind));
    return names;
}

Date presentMoment() {
    return date("2020-06-01T12:00:00Z");
}

Date date(std::string_view iso8601) {
    return ISO8601DateFormatter::date(iso8601).value();
}

std::shared_ptr<SyndicatedFeed> emptyFeed(SyndicatedFeedKind kind) {
    return std::make_shared<SyndicatedFeed>(kind, presentMoment());
}

FeedReading readInto(std::shared_ptr<SyndicatedFeed> feed, SyndicatedFeedKind kind, std::string text, Date now, StringEncoding encoding) {
    FeedReading reading{feed, {}};
    const auto clock = std::make_shared<FixedClock>(now);
    const auto parser = makeFeedParser(kind, std::move(feed), std::move(text), encoding, clock);
    parser->parse([&reading](const SyndicatedFeedParserResult& result) { reading.calls.push_back(result); });
    return reading;
}

FeedReading read(SyndicatedFeedKind kind, std::string text) {
    return readInto(emptyFeed(kind), kind, std::move(text));
}

FeedReading readRSS(std::string channel) {
    return read(SyndicatedFeedKind::rss, "<rss version=\"2.0\"><channel>" + std::move(channel) + "</channel></rss>");
}

FeedReading readRSSItem(std::string item) {
    return readRSS("<item>" + std::move(item) + "</item>");
}

FeedReading readAtom(std::string content) {
    return read(SyndicatedFeedKind::atom, "<feed xmlns=\"http://www.w3.org/2005/Atom\">" + std::move(content) + "</feed>");
}

FeedReading readAtomEntry(std::string entry) {
    return readAtom("<entry>" + std::move(entry) + "</entry>");
}

FeedReading readJSON(std::string text) {
    return read(SyndicatedFeedKind::json, std::move(text));
}

std::vector<std::string> fields(const SyndicatedFeed& feed) {
    std::vector<std::string> found = {feed.identifier, feed.title, feed.subtitle, feed.languageCode, feed.copyright,
        text(feed.datePublished), text(feed.dateUpdated), feed.version};
    for (const SyndicatedLink& link : feed.links)
        found.push_back(text(link));
    for (const SyndicatedCategory& category : feed.categories)
        found.push_back(category.term() + ' ' + category.label());
    return found;
}

std::vector<std::string> fields(const SyndicatedEntry& entry) {
    std::vector<std::string> found = {entry.identifier, entry.title, text(entry.dateCreated), text(entry.dateUpdated), entry.copyright,
        entry.isRead() ? "read" : "unread"};
    for (const auto& content : {entry.content(), entry.summary})
        found.push_back(content ? std::to_string(static_cast<int>(content->type())) + ' ' + content->content() : "none");
    for (const SyndicatedLink& link : entry.links)
        found.push_back(text(link));
    for (const SyndicatedCategory& category : entry.categories)
        found.push_back(category.term() + ' ' + category.label());
    for (const SyndicatedEnclosure& enclosure : entry.enclosures)
        found.push_back(enclosure.url.absoluteString() + ' ' + std::to_string(enclosure.length) + ' ' +
                        std::to_string(static_cast<int>(enclosure.kind)));
    return found;
}

} // namespace brindle::testsupport
