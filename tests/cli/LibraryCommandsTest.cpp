#include "tests/cli/LibraryFolder.hpp"

#include <fstream>

namespace brindle {

namespace {

using Titles = std::vector<std::string>;
using Keys = std::vector<std::string>;

const Keys itemKeys = {"kind", "name", "uuid", "url", "updateRate", "articles", "unread"};
const Keys groupKeys = {"kind", "name", "articles", "unread", "children"};
const Keys separatorKeys = {"kind", "name", "articles", "unread"};

} // namespace

class LibraryCommandsTest : public LibraryFolderTest {
protected:
    /// Replaces the document that is stored for a feed.
    void store(std::string_view uuid, const std::string& document) const { std::ofstream(supportFolder() / "Data" / uuid) << document; }
};

TEST_F(LibraryCommandsTest, ListPrintsTheTree) {
    const CommandLineRun result = run({"--json", "list"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, R"([
  {
    "kind": "item",
    "name": "One",
    "uuid": "00000000-0000-0000-0000-000000000001",
    "url": "http://a.test/one",
    "updateRate": 20,
    "articles": 2,
    "unread": 2
  },
  {
    "kind": "group",
    "name": "News",
    "articles": 1,
    "unread": 1,
    "children": [
      {
        "kind": "item",
        "name": "Second",
        "uuid": "00000000-0000-0000-0000-00000000000A",
        "url": "http://a.test/two",
        "updateRate": 30,
        "articles": 1,
        "unread": 1
      },
      {
        "kind": "separator",
        "name": "",
        "articles": 0,
        "unread": 0
      }
    ]
  },
  {
    "kind": "separator",
    "name": "",
    "articles": 0,
    "unread": 0
  }
]
)");
}

TEST_F(LibraryCommandsTest, ListPrintsAnOutlineForPeople) {
    const std::string output = run({"list"}).output;
    EXPECT_NE(output.find("\nOne "), std::string::npos) << output;
    EXPECT_NE(output.find("\nNews/ "), std::string::npos) << output;
    EXPECT_NE(output.find("\n  Second "), std::string::npos) << output;
    EXPECT_NE(output.find("\n  ----"), std::string::npos) << output;
}

TEST_F(LibraryCommandsTest, ListPrintsAnEmptyTreeWhereThereIsNoLibraryAndMakesNone) {
    const std::filesystem::path none = folder() / "none";
    EXPECT_EQ(runJSON({"--support-dir", none.string(), "list"}), nlohmann::ordered_json::array());
    EXPECT_FALSE(std::filesystem::exists(none));
}

TEST_F(LibraryCommandsTest, TheLibraryIsTheDesktopProgramsUnlessAFolderIsGiven) {
    environment = {{"XDG_DATA_HOME", (folder() / "data").string()}};
    EXPECT_EQ(call({"add-group", "News"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(folder() / "data/Brindle/Feeds.brindle"));
    environment = {{"XDG_DATA_HOME", ""}, {"HOME", ""}};
    const CommandLineRun result = call({"list"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "brindle-cli: Could not find Application Support folder for current user!\n");
}

TEST_F(LibraryCommandsTest, AddGroupAndAddSeparatorAppendToTheTopLevel) {
    const auto added = runJSON({"add-group", "Fun"});
    ASSERT_EQ(added.size(), 1U);
    EXPECT_EQ(added[0]["kind"], "group");
    EXPECT_EQ(added[0]["name"], "Fun");
    EXPECT_EQ(runJSON({"add-separator"})[0]["kind"], "separator");
    EXPECT_EQ(outline(), "One News(Second - ) - Fun() - ");
}

TEST_F(LibraryCommandsTest, AGroupNeedsAName) {
    expectError({"add-group", ""}, 1, "Name cannot be empty: Please provide a name to the group.");
    expectError({"edit", "@1", "--name="}, 1, "Name cannot be empty: Please provide a name to the group.");
}

TEST_F(LibraryCommandsTest, EditChangesNameAndRateOfAFeed) {
    const auto edited = runJSON({"edit", "00000000-0000-0000-0000-00000000000a", "--name", "Two", "--rate", "7"});
    EXPECT_EQ(edited[0]["name"], "Two");
    EXPECT_EQ(edited[0]["updateRate"], 7);
    EXPECT_EQ(runJSON({"edit", std::string(first), "--rate=9"})[0]["name"], "One");
    const auto list = runJSON({"list"});
    EXPECT_EQ(list[0]["updateRate"], 9);
    EXPECT_EQ(list[1]["children"][0]["name"], "Two");
}

TEST_F(LibraryCommandsTest, EditChangesTheNameOfAGroupByItsPlace) {
    EXPECT_EQ(runJSON({"edit", "@1", "--name", "Olds"})[0]["name"], "Olds");
    EXPECT_EQ(outline(), "One Olds(Second - ) - ");
}

TEST_F(LibraryCommandsTest, EditRefusesWhatAnEntryDoesNotHave) {
    const std::string uuid(first);
    expectError({"edit", uuid}, 2, "give --name or --rate");
    expectError({"edit", "@1", "--rate", "5"}, 2, "a group has no rate");
    expectError({"edit", "@2", "--name", "N"}, 2, "a separator has neither name nor rate");
    for (const char* rate : {"0", "-1", "x", "", "153722867280912931"})
        expectError({"edit", uuid, "--rate", rate}, 2, "--rate takes a whole number");
}

TEST_F(LibraryCommandsTest, RemoveTakesAFeedOut) {
    EXPECT_EQ(runJSON({"remove", std::string(second)})[0]["name"], "Second");
    EXPECT_EQ(outline(), "One News(- ) - ");
}

TEST_F(LibraryCommandsTest, RemoveTakesGroupsAndSeparatorsOutByTheirPlaces) {
    EXPECT_EQ(run({"remove", "@1.1"}).status, 0);
    EXPECT_EQ(outline(), "One News(Second ) - ");
    EXPECT_EQ(run({"remove", "@1"}).status, 0);
    EXPECT_EQ(outline(), "One - ");
}

TEST_F(LibraryCommandsTest, PrintsTheKeysOfAnEntryInOneOrder) {
    EXPECT_EQ(keys(runJSON({"add-group", "Fun"})[0]), groupKeys);
    EXPECT_EQ(keys(runJSON({"add-separator"})[0]), separatorKeys);
    EXPECT_EQ(keys(runJSON({"edit", std::string(first), "--name", "N"})[0]), itemKeys);
    EXPECT_EQ(keys(runJSON({"edit", "@1", "--name", "N"})[0]), groupKeys);
    EXPECT_EQ(keys(runJSON({"remove", "@4"})[0]), separatorKeys);
    EXPECT_EQ(keys(runJSON({"remove", "@3"})[0]), groupKeys);
    EXPECT_EQ(keys(runJSON({"remove", std::string(first)})[0]), itemKeys);
}

TEST_F(LibraryCommandsTest, RemoveSaysThatAnEmptyLibraryIsNotStored) {
    EXPECT_EQ(run({"remove", "@2"}).messages().size(), 0U);
    EXPECT_EQ(run({"remove", "@1"}).status, 0);
    const CommandLineRun last = run({"remove", "@0"});
    EXPECT_EQ(last.status, 0);
    EXPECT_EQ(last.messages().size(), 1U);
    EXPECT_EQ(outline(), "One ");
}

TEST_F(LibraryCommandsTest, RefusesANameThatIsNoneAndFailsForAnEntryThatIsNotThere) {
    for (const char* name : {"One", "@", "@x", "@1.", "@-1", "@+1", "@1..0", "00000000-0000-0000-0000"})
        expectError({"remove", name}, 2, "is neither a UUID nor a place");
    expectError({"remove", "@3"}, 1, "nothing is at @3");
    expectError({"remove", "@0.0"}, 1, "nothing is at @0.0");
    expectError({"articles", "--feed", "00000000-0000-0000-0000-000000000009"}, 1, "no feed has the UUID");
    EXPECT_EQ(outline(), "One News(Second - ) - ");
}

TEST_F(LibraryCommandsTest, ArticlesArePrintedWithTheirKeys) {
    const CommandLineRun result = run({"--json", "articles", "--feed", std::string(second)});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, R"([
  {
    "feed": "00000000-0000-0000-0000-00000000000A",
    "title": "Gamma",
    "url": "http://a.test/G",
    "state": "unread",
    "dateUpdated": "2020-01-01T00:00:00.000Z",
    "key": "Gamma&http://a.test/G"
  }
]
)");
}

TEST_F(LibraryCommandsTest, ArticlesAreThoseOfAStateAndOfAPartOfTheTree) {
    EXPECT_EQ(run({"mark", "read", "--key", "Alpha&http://a.test/A"}).status, 0);
    EXPECT_EQ(titles({"articles"}), (Titles{"Alpha", "B\u00e9ta", "Gamma"}));
    EXPECT_EQ(titles({"articles", "--state", "any"}), (Titles{"Alpha", "B\u00e9ta", "Gamma"}));
    EXPECT_EQ(titles({"articles", "--state", "read"}), (Titles{"Alpha"}));
    EXPECT_EQ(titles({"articles", "--state", "unread", "--feed", std::string(first)}), (Titles{"B\u00e9ta"}));
    EXPECT_EQ(titles({"articles", "--feed", "@1"}), (Titles{"Gamma"}));
    EXPECT_EQ(titles({"articles", "--feed", "@2"}), Titles());
    expectError({"articles", "--state", "new"}, 2, "--state takes unread, read or any");
}

TEST_F(LibraryCommandsTest, AnArticleWithoutALinkHasNoURL) {
    store(first, "<rss><channel><item><title>Alone</title></item></channel></rss>");
    const auto articles = runJSON({"articles", "--feed", std::string(first)});
    ASSERT_EQ(articles.size(), 1U);
    EXPECT_TRUE(articles[0]["url"].is_null());
    EXPECT_EQ(articles[0]["key"], "Alone&");
}

TEST_F(LibraryCommandsTest, SearchPrintsTheKeysOfAnArticleInTheOrderOfArticles) {
    EXPECT_EQ(keys(runJSON({"search", "Gamma"})[0]), (Keys{"feed", "title", "url", "state", "dateUpdated", "key"}));
}

TEST_F(LibraryCommandsTest, SearchFindsTitlesWhateverTheirCaseAndDiacritics) {
    EXPECT_EQ(titles({"search", "BETA"}), (Titles{"B\u00e9ta"}));
    EXPECT_EQ(titles({"search", "\u00e0"}), (Titles{"Alpha", "B\u00e9ta", "Gamma"}));
    EXPECT_EQ(titles({"search", "a.test"}), Titles());
    EXPECT_EQ(titles({"search", ""}), Titles());
}

TEST_F(LibraryCommandsTest, MarkChangesAllOneFeedsOrOneArticleAndSaves) {
    EXPECT_EQ(
        run({"--json", "mark", "read", "--feed", std::string(first), "--key", "Alpha&http://a.test/A"}).output, "{\n  \"changed\": 1\n}\n");
    EXPECT_EQ(titles({"articles", "--state", "read"}), (Titles{"Alpha"}));
    EXPECT_EQ(runJSON({"mark", "read", "--feed", std::string(first)})["changed"], 1);
    EXPECT_EQ(runJSON({"mark", "read"})["changed"], 1);
    EXPECT_EQ(runJSON({"mark", "read"})["changed"], 0);
    EXPECT_EQ(runJSON({"mark", "unread", "--feed", "@1"})["changed"], 1);
    EXPECT_EQ(titles({"articles", "--state", "unread"}), (Titles{"Gamma"}));
}

TEST_F(LibraryCommandsTest, MarkChangesTheArticlesOfAllFeedsThatShareAKey) {
    store(second, rssDocument("Second", {"Alpha"}));
    EXPECT_EQ(runJSON({"mark", "read", "--key", "Alpha&http://a.test/A"})["changed"], 2);
    EXPECT_EQ(titles({"articles", "--state", "read"}), (Titles{"Alpha", "Alpha"}));
}

TEST_F(LibraryCommandsTest, MarkFailsForAKeyThatNoArticleHas) {
    expectError({"mark", "read", "--feed", std::string(second), "--key", "Alpha&http://a.test/A"}, 1, "no article has the key");
    expectError({"mark", "any"}, 2, "mark takes read or unread");
}

} // namespace brindle
