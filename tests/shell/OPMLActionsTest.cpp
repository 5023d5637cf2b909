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

/// Shows a panel until a test answers it.
class WaitingPanels : public FilePanels {
public:
    void beginOpenPanel(std::string_view, Opened) override {}
    void beginSavePanel(const SavePanel&, Saved receiver) override { saved = std::move(receiver); }

    Saved saved;
};

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
    /// The names of what a next launch would load.
    std::vector<std::string> storedNames() const {
        FeedsManager stored(environment.supportDirectory, environment.sessions, {});
        stored.load();
        std::vector<std::string> names;
        for (const std::shared_ptr<Feed>& feed : stored.feeds)
            names.push_back(feed->name());
        return names;
    }
    bool isStored() const { return std::filesystem::exists(environment.supportDirectory / "Feeds.brindle"); }
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
    EXPECT_THAT(storedNames(), ElementsAre("old"));
    EXPECT_TRUE(become({"x"}));
    EXPECT_THAT(storedNames(), ElementsAre("old")) << "nothing is saved once it is read";
}

TEST_F(OPMLActionsTest, SaveNothingAndTellNothingWhenFilesAreOpened) {
    feedsManager().createSupportDirectories();
    add(makeItem("old"));
    takeCalls();
    delegate->openFiles({file("a.opml", {"x"})});
    EXPECT_TRUE(become({"old", "x"}));
    EXPECT_FALSE(isStored());
    EXPECT_THAT(takeCalls(), ElementsAre("Removing FeedGroup ")) << "of the reader's alone";
}

TEST_F(OPMLActionsTest, SaveNothingWhereNoFileIsChosen) {
    feedsManager().createSupportDirectories();
    add(makeItem("old"));
    import(Alert::firstButtonReturn);
    EXPECT_FALSE(isStored());
    EXPECT_THAT(names(), ElementsAre("old"));
}

TEST_F(OPMLActionsTest, HoldNoLibraryForAPanelThatIsStillOpen) {
    const auto waiting = std::make_shared<WaitingPanels>();
    auto library = std::make_shared<FeedsManager>(folder / "Other", environment.sessions, std::weak_ptr<FeedItemDelegate>());
    auto opml = OPMLActions::make(library, alerts, waiting);
    opml->showExport();
    opml.reset();
    EXPECT_EQ(library.use_count(), 1);
    library.reset();
    waiting->saved(folder / "out.opml", 0);
    EXPECT_FALSE(std::filesystem::exists(folder / "out.opml"));
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
