#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "cli/FeedJSON.hpp"
#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/UserLocale.hpp"
#include "tests/support/Corpus.hpp"
#include "tests/support/Folders.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace brindle {
namespace {

namespace fs = std::filesystem;
using testsupport::bytesOf;

const fs::path folder = testsupport::sourceFolder() + "/tests/cli/fixtures";

/// A document and what must become of it have one name: "x.xml" or "x.jsonfeed", and "x.json".
struct Fixtures {
    std::set<fs::path> documents;
    std::set<fs::path> expectations;
};

Fixtures fixtures() {
    Fixtures found;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const fs::path& path = entry.path();
        (path.extension() == ".json" ? found.expectations : found.documents).insert(path);
    }
    return found;
}

/// The document's feed after one update, at a fixed moment.
nlohmann::ordered_json updatedFeed(const fs::path& path) {
    const auto clock = std::make_shared<FixedClock>(ISO8601DateFormatter::date("2020-06-01T12:00:00Z").value());
    DecodedDocument document = decodeDocument(bytesOf(path));
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    const auto feed = std::make_shared<SyndicatedFeed>(kind, clock->now());
    if (const auto parser = makeFeedParser(kind, feed, std::move(document.text), document.encoding, clock))
        parser->parse([](const SyndicatedFeedParserResult&) {});
    return feedJSON(*feed);
}

class FeedFixturesTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(setUserLocale("en_US"));
        ASSERT_TRUE(setUserTimeZone("UTC"));
    }
};

TEST_F(FeedFixturesTest, HavePartners) {
    const Fixtures all = fixtures();
    std::set<std::string> documents;
    for (const fs::path& document : all.documents)
        documents.insert(document.stem().string());
    std::set<std::string> expectations;
    for (const fs::path& expectation : all.expectations)
        expectations.insert(expectation.stem().string());
    EXPECT_EQ(documents.size(), all.documents.size());
    EXPECT_EQ(documents, expectations);
    EXPECT_FALSE(documents.empty());
}

TEST_F(FeedFixturesTest, BecomeTheirPartners) {
    for (const fs::path& document : fixtures().documents) {
        const std::string expected = bytesOf(fs::path(document).replace_extension(".json"));
        EXPECT_EQ(updatedFeed(document).dump(2) + "\n", expected) << document;
    }
}

} // namespace
} // namespace brindle
