#include "foundation/FileManager.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

#include <cstdlib>
#include <fstream>

namespace brindle {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppDelegateLifecycleTest : public AppDelegateTest {
protected:
    /// Launches as at any launch but the first.
    void launch() {
        set(preference::isFrstLaunch, false);
        delegate->applicationWillFinishLaunching();
    }
    /// Launches for the first time, up to the splash's end.
    void launchFirst() {
        delegate->applicationWillFinishLaunching();
        takeCalls();
        windows->splash->handleClick();
    }
};

const std::vector<std::string> startCalls = {"Could not load library", "Could not load saved articles", "addObserver 0", "addObserver 1",
    "addObserver 2", "addObserver 3", "setURLEventHandler", "badge ", "activate", "showWindow", "setTitle Feeds Browser"};

TEST(AppDelegateDeathTest, HasNoSharedOneBeforeOneIsMade) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(AppDelegate::shared(), "Fatal error: The application has no delegate.");
}

TEST(AppDelegateDeathTest, NeedsAFolderForItsFiles) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto find = [] {
        ::unsetenv("XDG_DATA_HOME");
        ::unsetenv("HOME");
        static_cast<void>(AppDelegate::applicationSupportDirectory());
    };
    EXPECT_DEATH(find(), "Fatal error: Could not find Application Support folder for current user!");
}

TEST_F(AppDelegateLifecycleTest, IsReachedAsTheSharedOne) {
    EXPECT_EQ(AppDelegate::shared(), delegate);
}

TEST_F(AppDelegateLifecycleTest, KeepsItsFilesInAFolderOfItsOwn) {
    const auto folders = FileManager::applicationSupportDirectory();
    ASSERT_TRUE(folders);
    EXPECT_EQ(AppDelegate::applicationSupportDirectory(), *folders / "Brindle");
}

TEST_F(AppDelegateLifecycleTest, StartsInOrder) {
    launch();
    std::vector<std::string> expected = startCalls;
    expected.insert(expected.begin(), "setActivationPolicy 0");
    EXPECT_EQ(takeCalls(), expected);
    RunLoop::main().runPending();
    EXPECT_THAT(takeCalls(), ElementsAre("Building Menu..."));
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AppDelegateLifecycleTest, RegistersTheDefaultsFirst) {
    environment.defaults = std::make_shared<UserDefaults>(folder / "Other.plist");
    remake();
    delegate->applicationWillFinishLaunching();
    EXPECT_TRUE(isOn(preference::warnWhenOpeningArticles));
    EXPECT_THAT(takeCalls(), Contains("showSplash"));
}

TEST_F(AppDelegateLifecycleTest, MakesItsFoldersBeforeItLoads) {
    launch();
    for (const char* name : {"Caches", "Images", "Data"})
        EXPECT_TRUE(FileManager::fileExists(environment.supportDirectory / name)) << name;
}

TEST_F(AppDelegateLifecycleTest, StartsAlsoWhenItsFoldersCantBeMade) {
    std::ofstream(environment.supportDirectory) << "a file";
    launch();
    const auto calls = takeCalls();
    EXPECT_THAT(calls, Contains("Could not create directory Data"));
    EXPECT_EQ(calls.back(), "setTitle Feeds Browser");
}

TEST_F(AppDelegateLifecycleTest, TriesToMakeItsFoldersFromTheTopDownBeforeItLoads) {
    std::ofstream(folder / "file") << "no folder";
    environment.supportDirectory = folder / "file" / "Brindle";
    remake();
    set(preference::hideFBOnStartup, true);
    launch();
    const auto calls = takeCalls();
    EXPECT_THAT(std::vector<std::string>(calls.begin(), calls.begin() + 6),
        ElementsAre("setActivationPolicy 0", "Could not create directory Brindle", "Could not create directory Caches",
            "Could not create directory Images", "Could not create directory Data", "Could not load library"));
}

TEST_F(AppDelegateLifecycleTest, LoadsAndFetchesTheLibraryBeforeItObservesTheSystem) {
    storeLibrary("stored");
    bool fetched = false;
    systemEvents->onFirstObserver = [&] {
        const auto items = FeedsManager::items(feedsManager().feeds);
        fetched = items.size() == 1 && items[0]->hasTimer() && items[0]->session().isQueued();
    };
    feedsManager().allowUpdates = false;
    launch();
    EXPECT_TRUE(fetched);
    EXPECT_TRUE(feedsManager().allowUpdates);
    EXPECT_EQ(FeedsManager::items(feedsManager().feeds)[0]->delegate.lock(), delegate->uiSyncDispatcher());
}

TEST_F(AppDelegateLifecycleTest, KeepsOutOfTheDockWhereThePreferencesWantThat) {
    set(preference::hideInDock, true);
    launch();
    EXPECT_EQ(takeCalls().front(), "setActivationPolicy 1");
}

TEST_F(AppDelegateLifecycleTest, ShowsNoWindowWhereThePreferencesWantNone) {
    set(preference::hideFBOnStartup, true);
    launch();
    EXPECT_EQ(takeCalls().back(), "badge ");
    EXPECT_EQ(windows->browsersMade, 0);
}

TEST_F(AppDelegateLifecycleTest, ShowsNoWindowWhenItStartsInTheBackground) {
    environment.startsInBackground = true;
    remake();
    launch();
    EXPECT_EQ(windows->browsersMade, 0);
}

TEST_F(AppDelegateLifecycleTest, StopsAtTheSplashOfTheFirstLaunch) {
    delegate->applicationWillFinishLaunching();
    EXPECT_THAT(takeCalls(), ElementsAre("setActivationPolicy 0", "showSplash", "activate"));
    EXPECT_TRUE(isOn(preference::isFrstLaunch));
}

TEST_F(AppDelegateLifecycleTest, ShowsTheSplashAgainAfterALaunchThatNeverDismissedIt) {
    delegate->applicationWillFinishLaunching();
    remake();
    delegate->applicationWillFinishLaunching();
    EXPECT_THAT(takeCalls(), Contains("showSplash"));
}

TEST_F(AppDelegateLifecycleTest, NeverStartsWithoutASplashAtTheFirstLaunch) {
    windows->makes = false;
    delegate->applicationWillFinishLaunching();
    EXPECT_THAT(takeCalls(), ElementsAre("setActivationPolicy 0"));
}

TEST_F(AppDelegateLifecycleTest, AsksAndStartsWhenTheSplashIsDismissed) {
    launchFirst();
    std::vector<std::string> expected = startCalls;
    expected.insert(
        expected.begin(), {"closeSplash", "activate", "runModal askForDefaultFeedReaderTitle", "setDefaultHandler feed test.brindle"});
    EXPECT_EQ(takeCalls(), expected);
    EXPECT_FALSE(isOn(preference::isFrstLaunch));
}

TEST_F(AppDelegateLifecycleTest, AddsTheDefaultFeedBeforeTheStoredOnes) {
    storeLibrary("stored");
    launchFirst();
    ASSERT_THAT(names(), ElementsAre("", "stored"));
    const auto feed = std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0]);
    EXPECT_EQ(feed->url().absoluteString(), "file:///news.xml");
    EXPECT_EQ(feed->updateRate, 30);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_EQ(feed->delegate.lock(), delegate->uiSyncDispatcher());
    EXPECT_TRUE(isOn(preference::addedDefaultFeed));
}

TEST_F(AppDelegateLifecycleTest, AddsTheDefaultFeedOnce) {
    set(preference::addedDefaultFeed, true);
    launchFirst();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AppDelegateLifecycleTest, AddsTheDefaultFeedOnceForTwoClicksOnTheSplash) {
    storeLibrary("stored");
    launchFirst();
    windows->splash->handleClick();
    EXPECT_THAT(names(), ElementsAre("", "stored"));
}

TEST_F(AppDelegateLifecycleTest, AddsTheDefaultFeedAtTheEndOfWhatIsThere) {
    add(FeedSeparator::make());
    launchFirst();
    EXPECT_THAT(names(), ElementsAre("-", ""));
}

TEST_F(AppDelegateLifecycleTest, AddsNoDefaultFeedWhereOneHasItsAddress) {
    add(FeedItem::make("news", URL::make("file:///news.xml").value(), 30, {}, {}, feedsManager().environment()));
    launchFirst();
    EXPECT_THAT(names(), ElementsAre("news"));
    EXPECT_FALSE(isOn(preference::addedDefaultFeed));
}

TEST_F(AppDelegateLifecycleTest, AddsNoDefaultFeedOfAnAddressThatIsNone) {
    environment.defaultFeedAddress = "no address";
    remake();
    launchFirst();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(isOn(preference::addedDefaultFeed));
}

TEST_F(AppDelegateLifecycleTest, EndsByRemovingTheObserversAndSaving) {
    set(preference::hideFBOnStartup, true);
    launch();
    add(makeItem("a"));
    takeCalls();
    delegate->applicationWillTerminate();
    EXPECT_THAT(takeCalls(), ElementsAre("removeObserver 0", "removeObserver 1", "removeObserver 2", "removeObserver 3",
                                 "removeURLEventHandler", "Removing FeedGroup __SAVED_FEED_GROUP__"));
    EXPECT_TRUE(FileManager::fileExists(environment.supportDirectory / "Feeds.brindle"));
}

TEST_F(AppDelegateLifecycleTest, StoresTheSavedArticlesWhenItEnds) {
    set(preference::hideFBOnStartup, true);
    launch();
    const auto feed = add(makeItem("a", {"1"}));
    delegate->savedArticlesManager()->savedArticles = feed->articles();
    delegate->applicationWillTerminate();
    EXPECT_TRUE(FileManager::fileExists(delegate->savedArticlesManager()->file()));
}

TEST_F(AppDelegateLifecycleTest, LeavesTheTimersRunningWhenItEnds) {
    const auto feed = add(makeItem("a"));
    feed->scheduleUpdates(false);
    delegate->applicationWillTerminate();
    EXPECT_TRUE(feed->hasTimer());
}

TEST_F(AppDelegateLifecycleTest, TellsALauncherThatRunsToEnd) {
    running->running = {std::nullopt, "other", launcher};
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(takeCalls(), ElementsAre("post BrindleTerminateLauncher test.brindle"));
    environment.bundleIdentifier.reset();
    remake();
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(takeCalls(), ElementsAre("post BrindleTerminateLauncher -"));
}

TEST_F(AppDelegateLifecycleTest, IsNotOpenedAgain) {
    EXPECT_FALSE(AppDelegate::applicationShouldHandleReopen(false));
    EXPECT_FALSE(AppDelegate::applicationShouldHandleReopen(true));
}

TEST_F(AppDelegateLifecycleTest, OffersTheBrowserInTheDock) {
    const auto menu = AppDelegate::applicationDockMenu();
    ASSERT_EQ(menu->items().size(), 1U);
    EXPECT_EQ(menu->items()[0]->title(), "Show Feeds Browser");
    EXPECT_EQ(menu->items()[0]->action(), "showFeedsBrowser:");
}

} // namespace
} // namespace brindle
