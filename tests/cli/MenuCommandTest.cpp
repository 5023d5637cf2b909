#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"
#include "foundation/Text.hpp"
#include "tests/cli/LibraryFolder.hpp"

#include <algorithm>
#include <fstream>
#include <memory>

namespace brindle {
namespace {

class MenuCommandTest : public LibraryFolderTest {
protected:
    void set(const std::string& key, const std::string& value) { EXPECT_EQ(run({"prefs", "set", key, value}).status, 0) << key; }

    /// The item at the end of a path of titles.
    static nlohmann::ordered_json at(nlohmann::ordered_json items, const std::vector<std::string>& titles) {
        nlohmann::ordered_json found;
        for (const std::string& title : titles) {
            const auto place = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item["title"] == title; });
            if (place == items.end())
                return nullptr;
            found = *place;
            items = found["submenu"];
        }
        return found;
    }
};

TEST_F(MenuCommandTest, PrintsTheWholeMenuAsAnOutline) {
    run({"mark", "read", "--feed", "@1"});
    EXPECT_EQ(run({"menu"}).output, R"(Show Feeds Browser
--------
Add
  Feed
  Group
--------
Pause Updates
--------
Update All
--------
Mark All as Read
Open All Unread
--------
Unread Articles (2)
  [x] Alpha
  [x] Béta
--------
One (2)
  Mark All as Read
  Mark All as Unread (disabled)
  Open All Unread
  --------
  [x] Alpha
  [x] Béta
News
  Mark All as Read (disabled)
  Mark All as Unread
  Open All Unread (disabled)
  --------
  Second
    Mark All as Read (disabled)
    Mark All as Unread
    Open All Unread (disabled)
    --------
    Gamma
  --------
--------
)");
}

TEST_F(MenuCommandTest, PrintsEachItemAsAnObject) {
    const auto menu = runJSON({"menu"});
    EXPECT_EQ(keys(menu[0]),
        (std::vector<std::string>{"title", "separator", "enabled", "state", "action", "represents", "image", "style", "submenu"}));
    EXPECT_EQ(menu[0].dump(),
        R"({"title":"Show Feeds Browser","separator":false,"enabled":true,"state":false,"action":"showFeedsBrowser:","represents":null,)"
        R"("image":null,"style":{"bold":false,"color":null},"submenu":null})");
    EXPECT_EQ(menu[1]["separator"], true);
    EXPECT_EQ(menu[2]["action"], nullptr);
    EXPECT_EQ(menu[2]["submenu"].size(), 2U);
}

TEST_F(MenuCommandTest, TellsWhatAnItemStandsForAndItsImage) {
    const auto menu = runJSON({"menu"});
    EXPECT_EQ(at(menu, {"One (2)"})["represents"], "feed:" + std::string(first));
    EXPECT_EQ(at(menu, {"One (2)"})["image"], "feed");
    EXPECT_EQ(at(menu, {"One (2)"})["action"], "openFeed:");
    EXPECT_EQ(at(menu, {"News (1)"})["represents"], "group:News");
    EXPECT_EQ(at(menu, {"News (1)"})["image"], "NSImageNameFolder");
    EXPECT_EQ(at(menu, {"Unread Articles (3)"})["image"], "NSImageNameFolderSmart");
    EXPECT_EQ(at(menu, {"One (2)", "Alpha"})["represents"], "article:Alpha&http://a.test/A");
    EXPECT_EQ(at(menu, {"One (2)", "Alpha"})["action"], "showArticle:");
}

TEST_F(MenuCommandTest, PrintsAPreviewAsItsText) {
    EXPECT_EQ(at(runJSON({"menu"}), {"One (2)", "Alpha"})["submenu"].dump(), R"([{"preview":""}])");
    std::ofstream(supportFolder() / "Data" / first) << "<rss><channel><item><title>Alpha</title><description>&lt;p&gt;Some "
                                                       "&lt;b&gt;text&lt;/b&gt;&lt;/p&gt;</description></item></channel></rss>";
    const auto submenu = at(runJSON({"menu"}), {"One (1)", "Alpha"})["submenu"];
    ASSERT_EQ(submenu.size(), 1U);
    EXPECT_EQ(text::trimmed(submenu[0]["preview"].get<std::string>()), "Some text");
    set("allowFeedArticlePreview", "false");
    EXPECT_EQ(at(runJSON({"menu"}), {"One (1)", "Alpha"})["submenu"], nullptr);
}

TEST_F(MenuCommandTest, FollowsThePreferences) {
    set("allowBoldTextForUnreadArticles", "true");
    set("allowCustomColorForUnreadArticles", "true");
    set("customColorForUnreadArticles", "#12ab34");
    set("hideInDock", "true");
    set("showFeedsBrowser", "false");
    const auto menu = runJSON({"menu"});
    EXPECT_EQ(menu[0]["title"], "General");
    EXPECT_EQ(menu[0]["enabled"], true);
    EXPECT_EQ(at(menu, {"Show Feeds Browser"}), nullptr);
    EXPECT_EQ(at(menu, {"One (2)", "Alpha"})["style"].dump(), R"({"bold":true,"color":"#12ab34"})");
}

TEST_F(MenuCommandTest, ShowsSavedArticlesAmongTheCollections) {
    run({"keep", "--feed", std::string(first), "--key", "Alpha&http://a.test/A"});
    EXPECT_EQ(at(runJSON({"menu"}), {"Saved Articles (1)", "Alpha"})["enabled"], true);
}

TEST_F(MenuCommandTest, ShowsAFeedsOwnIcon) {
    std::filesystem::create_directories(supportFolder() / "Images");
    std::ofstream(supportFolder() / "Images" / first) << "icon";
    EXPECT_EQ(at(runJSON({"menu"}), {"One (2)"})["image"], "data");
}

TEST_F(MenuCommandTest, EnablesWhatAPersonCanChoose) {
    const auto menu = runJSON({"menu"});
    EXPECT_EQ(at(menu, {"One (2)", "Mark All as Unread"})["enabled"], false);
    EXPECT_EQ(at(menu, {"One (2)", "Mark All as Read"})["enabled"], true);
    EXPECT_EQ(at(menu, {"Add"})["enabled"], true);
    run({"mark", "read"});
    EXPECT_EQ(at(runJSON({"menu"}), {"Mark All as Read"})["enabled"], false);
}

TEST_F(MenuCommandTest, DisablesTheNoteOfAnEmptyLibrary) {
    std::filesystem::remove_all(supportFolder());
    const auto menu = runJSON({"menu"});
    EXPECT_EQ(menu.back()["title"], "No feeds...");
    EXPECT_EQ(menu.back()["enabled"], false);
    EXPECT_FALSE(std::filesystem::exists(supportFolder())) << "it only reads";
}

TEST_F(MenuCommandTest, TakesGroupsNestedDeeperThanAnyStack) {
    Console::redirect([](std::string_view) {});
    const SyndicatedSessionEnvironment offline = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    FeedsManager manager(supportFolder(), offline, {});
    std::shared_ptr<Feed> top = FeedGroup::make("Deep");
    for (int i = 1; i < 20'000; ++i) {
        const auto group = FeedGroup::make("Deep");
        group->add(top, 0);
        top = group;
    }
    manager.addFeed(top, 0);
    manager.save();
    EXPECT_EQ(run({"menu"}).status, 0);
}

TEST_F(MenuCommandTest, TellsTheStatusOfTheStatusItemAndTheDock) {
    EXPECT_EQ(runJSON({"status"}).dump(), R"-({"icon":"menu_feed_alt","title":"3","badge":"3","tooltip":"Brindle (3)","paused":false})-");
    run({"mark", "read"});
    EXPECT_EQ(runJSON({"status"}).dump(), R"({"icon":"menu_feed","title":"","badge":"","tooltip":"Brindle","paused":false})");
}

TEST_F(MenuCommandTest, TellsTheStatusByThePreferences) {
    set("showUnreadArticlesInMenu", "false");
    set("showBadgeInDock", "false");
    set("useLegacyMenuIcon", "true");
    EXPECT_EQ(runJSON({"status"}).dump(), R"({"icon":"menu_legacy_alt","title":"","badge":null,"tooltip":"Brindle","paused":false})");
    EXPECT_TRUE(run({"status"}).output.starts_with("Icon ")) << run({"status"}).output;
}

} // namespace
} // namespace brindle
