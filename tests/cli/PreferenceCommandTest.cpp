#include "tests/cli/CommandLineRun.hpp"

#include <fstream>

namespace brindle {

namespace {

using Keys = std::vector<std::string>;

} // namespace

class PreferenceCommandTest : public CommandLineTest {
protected:
    std::filesystem::path file() const { return supportFolder() / "Preferences.plist"; }
    std::string get(const std::string& key) { return run({"prefs", "get", key}).output; }
    /// What `get` prints after `set`; the exit status where that failed.
    std::string set(const std::string& key, const std::string& value) {
        const CommandLineRun result = run({"prefs", "set", key, value});
        return result.status == 0 ? get(key) : std::to_string(result.status);
    }
};

TEST_F(PreferenceCommandTest, GetPrintsTheValueAlone) {
    EXPECT_EQ(get("showUpdateAll"), "true\n");
    EXPECT_EQ(get("show_original_article"), "false\n");
    EXPECT_EQ(get("legacyMenuIconIndex"), "0\n");
    EXPECT_EQ(get("customFontSizeForPreview"), "14\n");
    EXPECT_EQ(get("customColorForReadArticles"), "#8e8e93\n");
    EXPECT_EQ(get("previousFeedReader"), "\n");
    EXPECT_EQ(get("lastSelectedPrefsPanel"), "0\n");
}

TEST_F(PreferenceCommandTest, GetPrintsAnObject) {
    EXPECT_EQ(run({"--json", "prefs", "get", "isFrstLaunch"}).output, R"({
  "key": "isFrstLaunch",
  "kind": "boolean",
  "value": true,
  "isDefault": true
}
)");
    EXPECT_TRUE(runJSON({"prefs", "get", "previousDefaultRSSReader"})["value"].is_null());
    EXPECT_EQ(runJSON({"prefs", "get", "previousFeedReader"})["value"], "");
    EXPECT_EQ(runJSON({"prefs", "get", "lastSelectedPrefsPanel"})["value"], "0");
    EXPECT_EQ(runJSON({"prefs", "get", "customTextSizeForArticles"})["value"], 13.0);
}

TEST_F(PreferenceCommandTest, SetTakesAValueOfTheKeysKind) {
    EXPECT_EQ(set("hideInDock", "true"), "true\n");
    EXPECT_EQ(set("articlesOpensSelectedIndex", "1"), "1\n");
    EXPECT_EQ(set("customTextSizeForArticles", "12.5"), "12.5\n");
    EXPECT_EQ(set("customTextSizeForArticles", "12"), "12\n");
    EXPECT_EQ(set("lastSelectedPrefsPanel", "M\u00e4nu"), "M\u00e4nu\n");
    EXPECT_EQ(set("customColorForUnreadArticles", "#FF8000"), "#ff8000\n");
    EXPECT_EQ(run({"prefs", "set", "--", "legacyMenuIconIndex", "-1"}).output, "-1\n");
}

TEST_F(PreferenceCommandTest, SetAndResetPrintWhatStandsThen) {
    const auto set = runJSON({"prefs", "set", "hideInDock", "true"});
    EXPECT_EQ(keys(set), (Keys{"key", "kind", "value", "isDefault"}));
    EXPECT_EQ(set["value"], true);
    EXPECT_EQ(set["isDefault"], false);
    const auto reset = runJSON({"prefs", "reset", "hideInDock"});
    EXPECT_EQ(reset["value"], false);
    EXPECT_EQ(reset["isDefault"], true);
}

TEST_F(PreferenceCommandTest, AValueOfAnotherKindIsWrongUsageAndChangesNothing) {
    expectError({"prefs", "set", "hideInDock", "1"}, 2, "hideInDock takes true or false, not '1'");
    expectError({"prefs", "set", "hideInDock", "TRUE"}, 2, "takes true or false");
    expectError({"prefs", "set", "speechVoiceIndex", "1.5"}, 2, "takes a whole number");
    expectError({"prefs", "set", "speechVoiceIndex", ""}, 2, "takes a whole number");
    expectError({"prefs", "set", "speechVoiceIndex", "9223372036854775808"}, 2, "takes a whole number");
    expectError({"prefs", "set", "customTextSizeForArticles", "large"}, 2, "takes a number");
    expectError({"prefs", "set", "customTextSizeForArticles", "inf"}, 2, "takes a number");
    expectError({"prefs", "set", "customTextSizeForArticles", "1e999"}, 2, "takes a number");
    expectError({"prefs", "set", "customColorForReadArticles", "red"}, 2, "takes a colour");
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(PreferenceCommandTest, AnUnknownKeyIsWrongUsage) {
    expectError({"prefs", "get", "isFirstLaunch"}, 2, "there is no preference 'isFirstLaunch'");
    expectError({"prefs", "set", "x", "true"}, 2, "there is no preference");
    expectError({"prefs", "reset", ""}, 2, "there is no preference");
}

TEST_F(PreferenceCommandTest, AnyOtherCallIsWrongUsage) {
    expectError({"prefs"}, 2, "missing argument");
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"prefs", "show"}, {"prefs", "list", "hideInDock"},
             {"prefs", "get"}, {"prefs", "set", "hideInDock"}, {"prefs", "reset", "hideInDock", "true"}})
        expectError(words, 2, "prefs takes list, get KEY, set KEY VALUE or reset KEY");
}

TEST_F(PreferenceCommandTest, ListPrintsAllInTheOrderOfRegistration) {
    EXPECT_EQ(run({"prefs", "set", "isDefaultReader", "true"}).status, 0);
    const auto list = runJSON({"prefs", "list"});
    ASSERT_EQ(list.size(), 53U);
    EXPECT_EQ(list[0]["key"], "launchOnLogin");
    EXPECT_EQ(list[0]["isDefault"], true);
    EXPECT_EQ(list[1]["value"], true);
    EXPECT_EQ(list[1]["isDefault"], false);
    EXPECT_EQ(list[52]["key"], "show_original_article");
    for (const auto& preference : list)
        EXPECT_EQ(keys(preference), (Keys{"key", "kind", "value", "isDefault"}));
}

TEST_F(PreferenceCommandTest, ListPrintsATableForPeople) {
    const std::string output = run({"prefs", "list"}).output;
    EXPECT_TRUE(output.starts_with("Key ")) << output;
    EXPECT_NE(output.find("\nlaunchOnLogin                              false\n"), std::string::npos) << output;
    EXPECT_NE(output.find("\npreviousFeedReader\n"), std::string::npos) << output;
}

TEST_F(PreferenceCommandTest, ShowingMakesNoFile) {
    EXPECT_EQ(run({"prefs", "list"}).status, 0);
    EXPECT_EQ(run({"prefs", "get", "hideInDock"}).status, 0);
    EXPECT_FALSE(std::filesystem::exists(supportFolder()));
}

TEST_F(PreferenceCommandTest, LiesBesideTheLibraryWhereAFolderIsGiven) {
    EXPECT_EQ(run({"prefs", "set", "hideInDock", "true"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(file()));
}

TEST_F(PreferenceCommandTest, IsTheDesktopProgramsUnlessAFolderIsGiven) {
    environment = {{"XDG_CONFIG_HOME", (folder() / "config").string()}};
    EXPECT_EQ(call({"prefs", "set", "hideInDock", "true"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(folder() / "config/brindle/Preferences.plist"));
    environment = {{"XDG_CONFIG_HOME", ""}, {"HOME", ""}};
    const CommandLineRun result = call({"prefs", "list"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.messages().size(), 1U);
}

TEST_F(PreferenceCommandTest, AStoreThatCannotBeWrittenIsAFailure) {
    std::filesystem::create_directories(file() / "in the way");
    expectError({"prefs", "set", "hideInDock", "true"}, 1, "Preferences.plist");
    expectError({"prefs", "reset", "hideInDock"}, 1, "Preferences.plist");
}

TEST_F(PreferenceCommandTest, AStoredValueOfAnotherKindReadsAsNone) {
    std::filesystem::create_directories(supportFolder());
    std::ofstream(file())
        << "<plist version=\"1.0\"><dict><key>showUpdateAll</key><string>yes</string><key>customColorForReadArticles</key>"
           "<data>AAAA</data><key>previousFeedReader</key><true/></dict></plist>";
    EXPECT_EQ(get("showUpdateAll"), "false\n");
    EXPECT_EQ(get("customColorForReadArticles"), "\n");
    EXPECT_TRUE(runJSON({"prefs", "get", "customColorForReadArticles"})["value"].is_null());
    EXPECT_TRUE(runJSON({"prefs", "get", "previousFeedReader"})["value"].is_null());
    EXPECT_EQ(runJSON({"prefs", "get", "showUpdateAll"})["isDefault"], false);
}

TEST_F(PreferenceCommandTest, ADamagedFileCountsAsEmptyAndIsReplaced) {
    std::filesystem::create_directories(supportFolder());
    std::ofstream(file()) << "damaged";
    EXPECT_EQ(get("showUpdateAll"), "true\n");
    EXPECT_EQ(set("showUpdateAll", "false"), "false\n");
}

TEST_F(PreferenceCommandTest, CallsAtTheSameTimeLoseNothing) {
    std::vector<CommandLineCall> calls;
    const std::vector<std::string> changed = {"hideInDock", "launchOnLogin", "isDefaultReader", "showMarkAllUnread"};
    for (const std::string& key : changed)
        calls.push_back(begin({"prefs", "set", key, "true"}));
    for (const CommandLineCall& each : calls)
        EXPECT_EQ(end(each).status, 0);
    for (const std::string& key : changed)
        EXPECT_EQ(get(key), "true\n") << key;
}

} // namespace brindle
