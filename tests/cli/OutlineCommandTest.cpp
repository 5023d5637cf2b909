#include "tests/cli/LibraryFolder.hpp"

#include <gmock/gmock.h>

namespace brindle {

namespace {

using ::testing::ElementsAre;

using JSON = nlohmann::ordered_json;

} // namespace

class OutlineCommandTest : public LibraryFolderTest {};

TEST_F(OutlineCommandTest, PrintsTheRowsOfTheOutline) {
    EXPECT_EQ(runJSON({"outline"}), JSON::parse(R"([
        {"kind": "collections", "title": "Collections", "count": null, "children": [
            {"kind": "today", "title": "Today", "count": 0},
            {"kind": "unread", "title": "Unread Articles", "count": 3},
            {"kind": "saved", "title": "Saved Articles", "count": 0}]},
        {"kind": "feeds", "title": "Feeds", "count": null, "children": [
            {"kind": "item", "title": "One", "count": 2},
            {"kind": "group", "title": "News", "count": 1, "children": [
                {"kind": "item", "title": "Second", "count": 1},
                {"kind": "separator", "title": "", "count": null}]},
            {"kind": "separator", "title": "", "count": null}]}])"));
}

TEST_F(OutlineCommandTest, CountsUnreadArticlesAlone) {
    run({"mark", "read", "--feed", std::string(second)});
    const JSON feeds = runJSON({"outline"})[1]["children"];
    EXPECT_EQ(feeds[0]["count"], 2);
    EXPECT_EQ(feeds[1]["count"], 0);
    EXPECT_EQ(feeds[1]["children"][0]["count"], 0);
}

TEST_F(OutlineCommandTest, LeavesOutTheCollectionsThatThePreferencesHide) {
    for (const char* key : {"showTodayCollectionInFeedsBrowser", "showUnreadCollectionInFeedsBrowser"})
        run({"prefs", "set", key, "false"});
    const JSON collections = runJSON({"outline"})[0];
    EXPECT_EQ(collections["children"].size(), 1U);
    EXPECT_EQ(collections["children"][0]["kind"], "saved");
    run({"prefs", "set", "showSavedArticlesCollectionInFeedsBrowser", "false"});
    const JSON rows = runJSON({"outline"});
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]["kind"], "feeds");
}

TEST_F(OutlineCommandTest, PrintsAnOutlineForPeople) {
    EXPECT_EQ(run({"outline"}).output, "Collections\n  Today\n  Unread Articles (3)\n  Saved Articles\n"
                                       "Feeds\n  One (2)\n  News (1)\n    Second (1)\n    --------\n  --------\n");
}

class MoveCommandTest : public LibraryFolderTest {
protected:
    /// The tree after a move.
    std::string move(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "move");
        EXPECT_EQ(run(arguments).status, 0);
        return outline();
    }
};

TEST_F(MoveCommandTest, MovesAFeedIntoAGroup) {
    EXPECT_EQ(move({std::string(first), "--to", "@1", "--index", "0"}), "News(One Second - ) - ");
}

TEST_F(MoveCommandTest, MovesToTheEndForMinusOne) {
    EXPECT_EQ(move({std::string(first), "--to", "top", "--index", "-1"}), "News(Second - ) - One ");
}

TEST_F(MoveCommandTest, MovesOutOfAGroupToTheTopLevel) {
    EXPECT_EQ(move({std::string(second), "--to", "top", "--index", "0"}), "Second One News(- ) - ");
}

TEST_F(MoveCommandTest, MovesGroupsAndSeparators) {
    EXPECT_EQ(move({"@2", "--to", "top", "--index", "0"}), "- One News(Second - ) ");
    EXPECT_EQ(move({"@2", "--to", "top", "--index", "0"}), "News(Second - ) - One ");
}

TEST_F(MoveCommandTest, PutsWhatComesFromAboveOnePlaceHigher) {
    EXPECT_EQ(move({std::string(first), "--to", "top", "--index", "2"}), "News(Second - ) One - ");
}

TEST_F(MoveCommandTest, MovesSeveralEntriesOneBehindTheOther) {
    EXPECT_EQ(move({std::string(first), "@2", "--to", "@1", "--index", "0"}), "News(One - Second - ) ");
}

TEST_F(MoveCommandTest, PutsEntriesFromAboveTheirPlaceInTurnedOrder) {
    EXPECT_EQ(move({"@0", "@1", "--to", "top", "--index", "-1"}), "- News(Second - ) One ");
}

TEST_F(MoveCommandTest, TakesAPlaceBelowAFeedForOneOfTheTopLevel) {
    EXPECT_EQ(move({std::string(second), "--to", std::string(first), "--index", "0"}), "Second One News(- ) - ");
}

TEST_F(MoveCommandTest, PrintsTheTree) {
    const JSON tree = runJSON({"move", std::string(first), "--to", "@1", "--index", "0"});
    EXPECT_EQ(tree, runJSON({"list"}));
    EXPECT_EQ(tree[0]["children"][0]["name"], "One");
}

TEST_F(MoveCommandTest, RefusesAGroupIntoItself) {
    const std::string before = outline();
    expectError({"move", "@1", "--to", "@1", "--index", "0"}, 1, "can't be moved");
    EXPECT_EQ(outline(), before);
}

TEST_F(MoveCommandTest, RefusesADropOnAFeed) {
    expectError({"move", "@2", "--to", std::string(first), "--index", "-1"}, 1, "can't be moved");
}

TEST_F(MoveCommandTest, RefusesAPlaceBeyondTheEnd) {
    expectError({"move", "@0", "--to", "top", "--index", "4"}, 1, "3 entries");
    expectError({"move", "@0", "--to", "@1", "--index", "3"}, 1, "2 entries");
}

TEST_F(MoveCommandTest, FailsForEntriesThatAreNotThere) {
    expectError({"move", "@7", "--to", "top", "--index", "0"}, 1, "nothing is at @7");
    expectError({"move", "@0", "--to", "@7", "--index", "0"}, 1, "nothing is at @7");
}

TEST_F(MoveCommandTest, NeedsItsOptions) {
    expectError({"move", "@0", "--to", "top"}, 2, "give --to and --index");
    expectError({"move", "@0", "--index", "0"}, 2, "give --to and --index");
    expectError({"move", "@0", "--to", "top", "--index", "-2"}, 2, "--index");
    expectError({"move", "--to", "top", "--index", "0"}, 2, "missing argument");
}

} // namespace brindle
