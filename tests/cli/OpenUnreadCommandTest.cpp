#include "tests/cli/LibraryFolder.hpp"

#include <fstream>

namespace brindle {
namespace {

class OpenUnreadCommandTest : public LibraryFolderTest {
protected:
    /// Replaces the document that is stored for the first feed by one of so many articles.
    void storeArticles(std::size_t count) const {
        std::vector<std::string> titles;
        for (std::size_t i = 0; i < count; ++i)
            titles.push_back(std::to_string(i));
        std::ofstream(supportFolder() / "Data" / first) << rssDocument("First", titles);
    }
};

TEST_F(OpenUnreadCommandTest, PrintsWhatWouldBeOpenedInTreeOrder) {
    EXPECT_EQ(
        runJSON({"open-unread", "--dry-run"}).dump(), R"({"asks":false,"urls":["http://a.test/A","http://a.test/B","http://a.test/G"]})");
    EXPECT_EQ(run({"open-unread", "--dry-run"}).output, "http://a.test/A\nhttp://a.test/B\nhttp://a.test/G\n");
}

TEST_F(OpenUnreadCommandTest, LeavesReadArticlesOutAndMarksNothing) {
    run({"mark", "read", "--feed", std::string(first)});
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(runJSON({"open-unread", "--dry-run"})["urls"].dump(), R"(["http://a.test/G"])");
}

TEST_F(OpenUnreadCommandTest, TakesAFeedOrAGroup) {
    EXPECT_EQ(runJSON({"open-unread", "--dry-run", "--feed", std::string(second)})["urls"].size(), 1U);
    EXPECT_EQ(runJSON({"open-unread", "--dry-run", "--feed", "@0"})["urls"].size(), 2U);
    EXPECT_EQ(runJSON({"open-unread", "--dry-run", "--feed", "@1"})["urls"].size(), 1U);
    expectError({"open-unread", "--dry-run", "--feed", "@9"}, 1, "nothing is at @9");
}

TEST_F(OpenUnreadCommandTest, AsksFromFiveArticlesOnUnlessThePreferencesWantNoQuestion) {
    const std::vector<std::string> command = {"open-unread", "--dry-run", "--feed", std::string(first)};
    storeArticles(4);
    EXPECT_EQ(runJSON(command)["asks"], false);
    storeArticles(5);
    EXPECT_EQ(runJSON(command)["asks"], true);
    run({"prefs", "set", "warnWhenOpeningArticles", "false"});
    EXPECT_EQ(runJSON(command)["asks"], false);
}

TEST_F(OpenUnreadCommandTest, IsWrongUsageWithoutDryRun) {
    expectError({"open-unread"}, 2, "give --dry-run");
}

} // namespace
} // namespace brindle
