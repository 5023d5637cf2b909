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

} // namespace brindle::testsupport
