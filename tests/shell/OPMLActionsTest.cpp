#include "Brindle/browser/BrowserActions.hpp"
#include "foundation/FileManager.hpp"
#include "tests/shell/AppDelegateFixture.hpp"
#include "tests/support/MainLoop.hpp"

#include <algorithm>
#include <fstream>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OPMLActionsTest : public AppDelegateTest {
protected:
    /// A file of feeds with these names.
    std::filesystem::path file(std::string_view name, const std::vector<std::string>& feeds) const {
        const std::filesystem::path path = folder / name;
        std::ofstream stream(path);
        stream << "<opml><body>";
        for (const std::string& feed : feeds)
            stream << R"(<outline title=")" << feed << R"(" xmlUrl="http://a.test/)" << feed << R"("/>)";
        stream << "</body></opml>";
        return path;
    }
    void import(int response) {
        alerts->response = response;
        perform(browseractions::importOPML);
    }
    bool become(const std::vector<std::string>& expected) {
        return runMainLoop([&] { return names() == expected; });
    }
};

TEST_F(OPMLActionsTest, OpenTheOPMLFilesAmongOthersInOrder) {
    add(makeItem("old"));
    delegate->openFiles({file("a.OPML", {"x"}), file("b.xml", {"no"}), file("c.opml", {"y", "z"})});
    EXPECT_TRUE(become({"old", "x", "y", "z"}));
    const auto item = std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds.back());
    EXPECT_EQ(item->delegate.lock(), delegate->uiSyncDispatcher());
    EXPECT_FALSE(item->hasTimer());
}

TEST_F(OPMLActionsTest, ImportIntoAnEmptyLibraryWithoutAQuestion) {
    panels->chosen = file("a.opml", {"x"});
    perform(browseractions::importOPML);
    EXPECT_THAT(takeCalls(), ElementsAre("openPanel opml"));
    EXPECT_TRUE(become({"x"}));
}

TEST_F(OPMLActionsTest, AskWhetherToReplaceALibrary) {
    add(makeItem("old"));
    takeCalls();
    import(Alert::firstButtonReturn + 2);
    EXPECT_THAT(takeCalls(), ElementsAre("runModal addReplaceDialogTitle"));
    EXPECT_EQ(alerts->alerts[0], (Alert{"addReplaceDialogTitle", "addReplaceDialogMessage",
                                     {"addReplaceDialogReplaceButton", "addReplaceDialogOKButton", "addReplaceDialogCancelButton"}}));
}

TEST_F(OPMLActionsTest, ReplaceTheLibraryWithTheFirstButton) {
    const auto old = add(makeItem("old"));
    old->scheduleUpdates(false);
    panels->chosen = file("a.opml", {"x"});
    import(Alert::firstButtonReturn);
    EXPECT_TRUE(become({"x"}));
    EXPECT_FALSE(old->hasTimer());
    EXPECT_TRUE(old->delegate.expired());
}

TEST_F(OPMLActionsTest, EmptyTheLibraryWithAFileOfNoEntries) {
    add(makeItem("old"));
    panels->chosen = file("a.opml", {});
    import(Alert::firstButtonReturn);
    EXPECT_TRUE(become({}));
}

TEST_F(OPMLActionsTest, AppendToTheLibraryWithAnyOtherButton) {
    for (const int response : {Alert::firstButtonReturn + 1, 0}) {
        feedsManager().feeds.clear();
        add(makeItem("old"));
        panels->chosen = file("a.opml", {"x"});
        import(response);
        EXPECT_TRUE(become({"old", "x"})) << response;
    }
}

TEST_F(OPMLActionsTest, SaveTheLibraryAsItIsWhileTheFileIsRead) {
    feedsManager().createSupportDirectories();
    add(makeItem("old"));
    panels->chosen = file("a.opml", {"x"});
    import(Alert::firstButtonReturn);
    FeedsManager stored(environment.supportDirectory, environment.sessions, {});
    stored.load();
    ASSERT_EQ(stored.feeds.size(), 1U);
    EXPECT_EQ(stored.feeds[0]->name(), "old");
    EXPECT_TRUE(become({"x"}));
}

TEST_F(OPMLActionsTest, ImportAndExportNothingWhereNoFileIsChosen) {
    perform(browseractions::importOPML);
    perform(browseractions::exportOPML);
    EXPECT_THAT(takeCalls(), ElementsAre("openPanel opml", "savePanel opml Brindle feeds.opml"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(OPMLActionsTest, ExportWithTheGroupsOrWithout) {
    add(FeedGroup::make("group"))->add(makeItem("a"), 0);
    panels->chosen = folder / "out.opml";
    const auto exported = [&] {
        perform(browseractions::exportOPML);
        return FileManager::contents(*panels->chosen).value_or(std::string());
    };
    EXPECT_EQ(exported().find("group"), std::string::npos);
    panels->option = 1;
    EXPECT_NE(exported().find("group"), std::string::npos);
    EXPECT_EQ(panels->savePanel->options.size(), 2U);
}

} // namespace
} // namespace brindle
