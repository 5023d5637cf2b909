#include "Brindle/library/FeedItem.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "tests/cli/LibraryFolder.hpp"
#include "tests/support/Corpus.hpp"

#include <fstream>

namespace brindle {

namespace {

using Titles = std::vector<std::string>;
using Keys = std::vector<std::string>;

constexpr const char* alphaKey = "Alpha&http://a.test/A";
constexpr const char* gammaKey = "Gamma&http://a.test/G";

} // namespace

class SavedArticleCommandsTest : public LibraryFolderTest {
protected:
    std::filesystem::path savedFile() const { return supportFolder() / "Saved Articles.brindle"; }
    void keep(std::string_view feed, const char* key) { EXPECT_EQ(run({"keep", "--feed", std::string(feed), "--key", key}).status, 0); }
    /// Replaces the document that is stored for a feed.
    void store(std::string_view uuid, const std::string& document) const { std::ofstream(supportFolder() / "Data" / uuid) << document; }
};

TEST_F(SavedArticleCommandsTest, KeepStoresAnArticleThatSavedPrints) {
    const auto kept = runJSON({"keep", "--feed", std::string(second), "--key", gammaKey});
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept[0]["title"], "Gamma");
    EXPECT_EQ(run({"--json", "saved"}).output, R"([
  {
    "feed": null,
    "title": "Gamma",
    "url": "http://a.test/G",
    "state": "unread",
    "dateUpdated": "2020-02-03T04:05:06.789Z",
    "key": "Gamma&http://a.test/G",
    "identifier": "http://a.test/G"
  }
]
)");
}

TEST_F(SavedArticleCommandsTest, SavedPrintsTheArticlesInTheOrderOfKeepingEachOnce) {
    keep(second, gammaKey);
    keep(first, alphaKey);
    keep(second, gammaKey);
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma", "Alpha"}));
}

TEST_F(SavedArticleCommandsTest, KeepFindsAnArticleBelowAGroup) {
    keep("@1", gammaKey);
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma"}));
}

TEST_F(SavedArticleCommandsTest, ASavedArticleOutlivesItsFeedsEntryAndItsFeed) {
    keep(second, gammaKey);
    store(second, rssDocument("Second", {"Delta"}));
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma"}));
    EXPECT_EQ(run({"remove", std::string(second)}).status, 0);
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma"}));
}

TEST_F(SavedArticleCommandsTest, SavedPrintsATableWithWhatUnkeepTakes) {
    keep(second, gammaKey);
    const std::string output = run({"saved"}).output;
    EXPECT_NE(output.find("Gamma  http://a.test/G  http://a.test/G\n"), std::string::npos) << output;
}

TEST_F(SavedArticleCommandsTest, SavedPrintsNothingWhereNoneIsSavedAndMakesNoFile) {
    EXPECT_EQ(runJSON({"saved"}), nlohmann::ordered_json::array());
    EXPECT_FALSE(std::filesystem::exists(savedFile()));
}

TEST_F(SavedArticleCommandsTest, KeepFailsForAKeyOrAFeedThatIsNotThere) {
    expectError({"keep", "--feed", std::string(second), "--key", alphaKey}, 1, "no article of the feed has the key");
    expectError({"keep", "--feed", "00000000-0000-0000-0000-000000000009", "--key", alphaKey}, 1, "no feed has the UUID");
    EXPECT_FALSE(std::filesystem::exists(savedFile()));
}

TEST_F(SavedArticleCommandsTest, KeepAndUnkeepNeedTheirOptions) {
    expectError({"keep", "--feed", std::string(first)}, 2, "give --feed and --key");
    expectError({"keep", "--key", alphaKey}, 2, "give --feed and --key");
    expectError({"unkeep"}, 2, "give --id");
    expectError({"keep", "--feed", "One", "--key", alphaKey}, 2, "is neither a UUID nor a place");
}

TEST_F(SavedArticleCommandsTest, UnkeepTakesAnArticleOut) {
    keep(second, gammaKey);
    keep(first, alphaKey);
    const auto removed = runJSON({"unkeep", "--id", "http://a.test/G"});
    ASSERT_EQ(removed.size(), 1U);
    EXPECT_EQ(removed[0]["title"], "Gamma");
    EXPECT_EQ(titles({"saved"}), (Titles{"Alpha"}));
}

TEST_F(SavedArticleCommandsTest, UnkeepFailsForAnIdentifierThatNoArticleHas) {
    keep(second, gammaKey);
    expectError({"unkeep", "--id", "http://a.test/A"}, 1, "no saved article has the identifier");
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma"}));
}

TEST_F(SavedArticleCommandsTest, UnkeepSaysThatAnEmptyListIsNotStored) {
    keep(second, gammaKey);
    const CommandLineRun result = run({"unkeep", "--id", "http://a.test/G"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.messages().size(), 1U);
    EXPECT_EQ(titles({"saved"}), (Titles{"Gamma"}));
}

TEST_F(SavedArticleCommandsTest, ADamagedFileIsShownAsEmptyAndNotReplaced) {
    std::ofstream(savedFile()) << "damaged";
    const CommandLineRun shown = run({"--json", "saved"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(shown.output, "[]\n");
    EXPECT_NE(shown.errors.find("Could not unarchive saved articles, error: "), std::string::npos);
    expectError({"keep", "--feed", std::string(second), "--key", gammaKey}, 1, "can't be read");
    expectError({"unkeep", "--id", "x"}, 1, "can't be read");
    EXPECT_EQ(std::filesystem::file_size(savedFile()), 7U);
}

TEST_F(SavedArticleCommandsTest, AFileWithAnythingButArticlesIsNotReplaced) {
    const SyndicatedSessionEnvironment offline = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    const std::vector<std::shared_ptr<const Coding>> root = {FeedItem::make("Feed", *URL::make("http://a.test/feed"), 30, {}, {}, offline)};
    const std::string bytes = KeyedArchiver::archivedData(root).value();
    std::ofstream(savedFile(), std::ios::binary) << bytes;
    EXPECT_EQ(run({"--json", "saved"}).output, "[]\n");
    expectError({"keep", "--feed", std::string(second), "--key", gammaKey}, 1, "can't be read");
    expectError({"unkeep", "--id", "x"}, 1, "can't be read");
    EXPECT_EQ(testsupport::bytesOf(savedFile()), bytes);
}

TEST_F(SavedArticleCommandsTest, CollectionsPrintTodaysTheUnreadAndTheSavedArticles) {
    store(first, "<rss><channel><item><title>Now</title><pubDate>Mon, 03 Feb 2020 01:00:00 GMT</pubDate></item>"
                 "<item><title>Then</title><pubDate>Sun, 02 Feb 2020 23:00:00 GMT</pubDate></item></channel></rss>");
    EXPECT_EQ(run({"mark", "read", "--key", "Now&"}).status, 0);
    keep(second, gammaKey);
    const auto collections = runJSON({"collections"});
    const auto titlesOf = [&](const char* key) {
        Titles found;
        for (const auto& article : collections[key])
            found.push_back(article["title"]);
        return found;
    };
    EXPECT_EQ(keys(collections), (Keys{"today", "unread", "saved"}));
    EXPECT_EQ(titlesOf("today"), (Titles{"Now"}));
    EXPECT_EQ(titlesOf("unread"), (Titles{"Then", "Gamma"}));
    EXPECT_EQ(titlesOf("saved"), (Titles{"Gamma"}));
    EXPECT_EQ(keys(collections["saved"][0]), (Keys{"feed", "title", "url", "state", "dateUpdated", "key"}));
    EXPECT_TRUE(collections["saved"][0]["feed"].is_null());
    EXPECT_EQ(collections["unread"][1]["feed"], second);
}

TEST_F(SavedArticleCommandsTest, CollectionsGoByTheTimeZone) {
    store(first, "<rss><channel><item><title>Then</title><pubDate>Sun, 02 Feb 2020 23:00:00 GMT</pubDate></item></channel></rss>");
    EXPECT_EQ(runJSON({"collections"})["today"].size(), 0U);
    EXPECT_EQ(runJSON({"--timezone", "Europe/Berlin", "collections"})["today"].size(), 1U);
}

TEST_F(SavedArticleCommandsTest, CollectionsAreCompleteAlsoWhereThePreferencesShowThemNowhere) {
    for (const char* place : {"Menu", "FeedsBrowser"})
        EXPECT_EQ(run({"prefs", "set", std::string("showUnreadCollectionIn") + place, "false"}).status, 0);
    EXPECT_EQ(runJSON({"collections"})["unread"].size(), 3U);
}

TEST_F(SavedArticleCommandsTest, CollectionsPrintTheirNamesAndCountsForPeople) {
    const std::string output = run({"collections"}).output;
    EXPECT_NE(output.find("Today (0)\n\nUnread Articles (3)\nUpdated "), std::string::npos) << output;
    EXPECT_NE(output.find("\n\nSaved Articles (0)\n"), std::string::npos) << output;
}

} // namespace brindle
