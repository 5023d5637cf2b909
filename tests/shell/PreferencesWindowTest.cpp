#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "Brindle/shell/PreferencesAppearanceController.hpp"
#include "Brindle/shell/PreferencesCollectionsViewController.hpp"
#include "Brindle/shell/PreferencesFeedsBrowserController.hpp"
#include "Brindle/shell/PreferencesGeneralController.hpp"
#include "Brindle/shell/PreferencesMenuController.hpp"
#include "Brindle/shell/PreferencesNotificationsController.hpp"
#include "Brindle/shell/PreferencesWindowController.hpp"
#include "foundation/FileManager.hpp"
#include "tests/fakes/SpeechFake.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

#include <algorithm>
#include <set>

namespace brindle {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PreferencesWindowTest : public AppDelegateTest {
protected:
    using TabKind = PreferencesTabViewController::TabKind;

    PreferencesTabViewController& open() {
        delegate->showPreferences();
        return windows->preferences->contentViewController();
    }
    template <typename Pane>
    Pane& pane(TabKind kind) {
        windows->tabs->selectTab(static_cast<std::size_t>(kind));
        return dynamic_cast<Pane&>(*windows->preferences->contentViewController().tabViewItems().at(static_cast<std::size_t>(kind)).pane);
    }
    PreferencesGeneralController& general() {
        open();
        return pane<PreferencesGeneralController>(TabKind::general);
    }
    static std::vector<std::shared_ptr<PreferenceCheckBox>> checkBoxes(const PreferencesPane& shown) {
        std::vector<std::shared_ptr<PreferenceCheckBox>> found;
        for (const PreferencesPane::Section& section : shown.sections())
            for (const PreferencesPane::Row& row : section.rows)
                for (const auto& control : row.controls)
                    if (auto box = std::dynamic_pointer_cast<PreferenceCheckBox>(control))
                        found.push_back(std::move(box));
        return found;
    }
    /// The box of a key in a pane; a failure where there is none.
    std::shared_ptr<PreferenceCheckBox> checkBox(TabKind kind, std::string_view key) {
        for (const auto& box : checkBoxes(pane<PreferencesPane>(kind))) {
            if (box->key() == key)
                return box;
        }
        ADD_FAILURE() << "no check box for " << key;
        return nullptr;
    }
    /// How often the menu was rebuilt since the last call.
    std::ptrdiff_t takeRebuilds() {
        RunLoop::main().runPending();
        return std::ranges::count_if(takeCalls(), [](const std::string& call) { return call.starts_with("badge"); });
    }
};

TEST_F(PreferencesWindowTest, HasSixTabsInOrder) {
    std::vector<std::string> labels;
    for (const auto& item : open().tabViewItems())
        labels.push_back(item.label);
    EXPECT_THAT(labels, ElementsAre("General", "Appearance", "Menu", "Feeds Browser", "Collections", "Notifications"));
}

TEST_F(PreferencesWindowTest, OpensWithTheFirstTabAtFirst) {
    open();
    EXPECT_THAT(takeCalls(), ElementsAre("setDelegate", "selectTab 0", "setTitle General", "setContentSize 100x50", "showWindow"));
}

TEST_F(PreferencesWindowTest, RemembersATabThatIsSelectedAndFitsTheWindowToIt) {
    open();
    takeCalls();
    windows->tabs->selectTab(2);
    EXPECT_THAT(takeCalls(), ElementsAre("selectTab 2", "setTitle Menu", "setContentSize 300x50"));
    EXPECT_EQ(environment.defaults->stringForKey(preference::lastSelectedPrefsPanel), "menu");
    EXPECT_EQ(UserDefaults(folder / "Preferences.plist").stringForKey(preference::lastSelectedPrefsPanel), "menu") << "synchronized";
}

TEST_F(PreferencesWindowTest, KeepsTheSizeThatATabHadWhenItWasFirstSeen) {
    open();
    windows->tabs->selectTab(2);
    windows->tabs->selectTab(0);
    windows->tabs->growth = 1000;
    takeCalls();
    windows->tabs->selectTab(2);
    EXPECT_THAT(takeCalls(), ElementsAre("selectTab 2", "setTitle Menu", "setContentSize 300x50"));
    EXPECT_EQ(windows->preferences->contentViewController().tabViewSizes().at(2).width, 300);
}

TEST_F(PreferencesWindowTest, ComesBackWithTheTabSelectedLast) {
    set(preference::lastSelectedPrefsPanel, std::string("collections"));
    open();
    EXPECT_EQ(windows->tabs->selected, 4U);
}

TEST_F(PreferencesWindowTest, OpensWithATabThatIsAskedFor) {
    set(preference::lastSelectedPrefsPanel, std::string("collections"));
    open().selectedTabKind = TabKind::notifications;
    windows->preferences->showWindow();
    EXPECT_EQ(windows->tabs->selected, 5U);
}

TEST_F(PreferencesWindowTest, ShowsWhatIsThereForATabThatIsNoMore) {
    set(preference::lastSelectedPrefsPanel, std::string("plugins"));
    open();
    EXPECT_THAT(takeCalls(), ElementsAre("setDelegate", "setTitle General", "setContentSize 100x50", "showWindow"));
}

TEST_F(PreferencesWindowTest, RefreshesTheInterfaceWhenItCloses) {
    open();
    takeRebuilds();
    windows->preferences->close();
    EXPECT_EQ(takeRebuilds(), 1);
    EXPECT_FALSE(windows->preferencesWindow->isVisible());
}

TEST_F(PreferencesWindowTest, HasOneCheckBoxForEachPreferenceThatIsBoundByName) {
    open();
    std::multiset<std::string_view> bound;
    for (std::size_t kind = 0; kind < 6; ++kind) {
        for (const auto& box : checkBoxes(pane<PreferencesPane>(static_cast<TabKind>(kind))))
            bound.insert(box->key());
    }
    using namespace preference;
    EXPECT_EQ(
        bound, (std::multiset<std::string_view>{warnWhenOpeningArticles, useLegacyMenuIcon, showUnreadArticlesInMenu,
                   showUnreadArticlesInFeeds, showUnreadArticlesInGroups, showUpdateAll, showMarkAllRead, showMarkAllUnread,
                   showOpenAllUnread, markMenuItems, markMenuItemsWhenRead, useShortArticleNames, allowBoldTextForUnreadArticles,
                   allowCustomColorForUnreadArticles, allowCustomColorForReadArticles, allowFeedArticlePreview, useCustomFontSizeForPreview,
                   showFeedsBrowser, hideFBOnStartup, allowFBOpenFeed, allowFBOpenArticles, showTodayCollectionInMenu,
                   showTodayCollectionInFeedsBrowser, showUnreadCollectionInMenu, showUnreadCollectionInFeedsBrowser,
                   showSavedArticlesCollectionInMenu, showSavedArticlesCollectionInFeedsBrowser, useVisualNotifications,
                   useSpeechNotifications, notifyOnNewArticles, notifyOnOtherError, notifyOnAttention, notifyOnAuthenticationRequest}));
}

TEST_F(PreferencesWindowTest, ACheckBoxShowsItsPreferenceAndChangesIt) {
    open();
    const auto box = checkBox(TabKind::general, preference::warnWhenOpeningArticles);
    EXPECT_TRUE(box->state());
    box->press();
    EXPECT_FALSE(isOn(preference::warnWhenOpeningArticles));
    set(preference::warnWhenOpeningArticles, true);
    EXPECT_TRUE(box->state()) << "whoever changes it";
}

TEST_F(PreferencesWindowTest, WhatTheMenuShowsChangesAtOnce) {
    open();
    takeRebuilds();
    using namespace preference;
    for (const auto& [kind, keys] :
        {std::pair(
             TabKind::appearance, std::vector{useLegacyMenuIcon, showUnreadArticlesInMenu, showUnreadArticlesInFeeds,
                                      showUnreadArticlesInGroups, showUpdateAll, showMarkAllRead, showMarkAllUnread, showOpenAllUnread}),
            std::pair(TabKind::menu, std::vector{markMenuItems, markMenuItemsWhenRead, useShortArticleNames, allowFeedArticlePreview,
                                         allowCustomColorForReadArticles, allowCustomColorForUnreadArticles, allowBoldTextForUnreadArticles,
                                         useCustomFontSizeForPreview}),
            std::pair(TabKind::feedsBrowser, std::vector{showFeedsBrowser})}) {
        for (const std::string_view key : keys) {
            checkBox(kind, key)->press();
            EXPECT_EQ(takeRebuilds(), 1) << key;
        }
    }
}

TEST_F(PreferencesWindowTest, WhatTheMenuDoesNotShowLeavesItAlone) {
    open();
    takeRebuilds();
    checkBox(TabKind::feedsBrowser, preference::hideFBOnStartup)->press();
    checkBox(TabKind::notifications, preference::notifyOnAttention)->press();
    checkBox(TabKind::general, preference::warnWhenOpeningArticles)->press();
    EXPECT_EQ(takeRebuilds(), 0);
}

TEST_F(PreferencesWindowTest, ACollectionIsRefreshedBeforeTheBrowserHearsOfIt) {
    open();
    takeRebuilds();
    const auto observer = NotificationCenter::defaultCenter().addObserver(
        "PreferencesCollectionsViewControllerDidUpdateCollections", nullptr, [this](const Notification& notification) {
            EXPECT_EQ(notification.object, nullptr);
            log->emplace_back("didUpdateCollections");
        });
    checkBox(TabKind::collections, preference::showTodayCollectionInMenu)->press();
    std::vector<std::string> calls = takeCalls();
    std::erase_if(calls, [](const std::string& call) { return !call.starts_with("badge") && call != "didUpdateCollections"; });
    EXPECT_THAT(calls, ElementsAre("badge ", "didUpdateCollections"));
}

TEST_F(PreferencesWindowTest, GeneralShowsTheStateOfTheSystem) {
    set(preference::launchOnLogin, true);
    set(preference::hideInDock, true);
    PreferencesGeneralController& shown = general();
    EXPECT_FALSE(shown.setDefaultFeedReaderButton->state());
    EXPECT_TRUE(shown.launchOnLoginButton->state());
    EXPECT_TRUE(shown.showBadgeInDockButton->state());
    EXPECT_TRUE(shown.hideInDockButton->state());
    launchServices->handlers["feed"] = bundleIdentifier;
    open();
    EXPECT_TRUE(shown.setDefaultFeedReaderButton->state());
    launchServices->handlers.clear();
    set(preference::isDefaultReader, true);
    open();
    EXPECT_TRUE(shown.setDefaultFeedReaderButton->state());
}

TEST_F(PreferencesWindowTest, GeneralTakesTheSchemeAndGivesItBack) {
    launchServices->handlers["feed"] = "other";
    PreferencesGeneralController& shown = general();
    shown.setDefaultFeedReaderButton->press();
    EXPECT_EQ(launchServices->handlers["feed"], bundleIdentifier);
    EXPECT_TRUE(isOn(preference::isDefaultReader));
    shown.setDefaultFeedReaderButton->press();
    EXPECT_EQ(launchServices->handlers["feed"], "other");
    EXPECT_FALSE(isOn(preference::isDefaultReader));
}

TEST_F(PreferencesWindowTest, GeneralStartsTheProgramAtLogin) {
    PreferencesGeneralController& shown = general();
    takeCalls();
    shown.launchOnLoginButton->press();
    EXPECT_TRUE(isOn(preference::launchOnLogin));
    EXPECT_EQ(takeCalls().size(), 1U);
}

TEST_F(PreferencesWindowTest, GeneralChangesTheBadgeAtOnce) {
    add(makeItem("a", {"1"}));
    PreferencesGeneralController& shown = general();
    takeCalls();
    shown.showBadgeInDockButton->press();
    EXPECT_FALSE(isOn(preference::showBadgeInDock));
    EXPECT_THAT(takeCalls(), ElementsAre("badge none"));
    shown.showBadgeInDockButton->press();
    EXPECT_THAT(takeCalls(), ElementsAre("badge 1"));
}

TEST_F(PreferencesWindowTest, GeneralAsksBeforeItHidesTheProgram) {
    PreferencesGeneralController& shown = general();
    alerts->response = Alert::firstButtonReturn + 1;
    shown.hideInDockButton->press();
    EXPECT_FALSE(shown.hideInDockButton->state()) << "put back";
    EXPECT_FALSE(isOn(preference::hideInDock));
    alerts->response = Alert::firstButtonReturn;
    shown.hideInDockButton->press();
    EXPECT_TRUE(shown.hideInDockButton->state());
    EXPECT_TRUE(isOn(preference::hideInDock));
}

TEST_F(PreferencesWindowTest, GeneralKeepsOneOfTheWaysInWhichArticlesOpen) {
    PreferencesGeneralController& shown = general();
    EXPECT_TRUE(shown.articleOpensStackView[0]->state());
    EXPECT_FALSE(shown.articleOpensStackView[1]->state());
    shown.articleOpensStackView[1]->press();
    EXPECT_EQ(environment.defaults->integerForKey(preference::articlesOpensSelectedIndex), 1);
    EXPECT_FALSE(shown.articleOpensStackView[0]->state());
    set(preference::articlesOpensSelectedIndex, std::int64_t(0));
    open();
    EXPECT_TRUE(shown.articleOpensStackView[0]->state());
    EXPECT_FALSE(shown.articleOpensStackView[1]->state());
}

TEST_F(PreferencesWindowTest, GeneralResetsTheIconsInMemory) {
    const auto inner = makeItem("inner");
    const auto group = add(FeedGroup::make("G"));
    feedsManager().addFeed(inner, 0, group);
    inner->setFeedImageData("icon");
    general().resetIconCacheButton->press();
    EXPECT_EQ(inner->feedImageData(), std::nullopt);
}

TEST_F(PreferencesWindowTest, GeneralResetsAllCaches) {
    const auto item = add(makeItem("a", {"1"}));
    item->setFeedImageData("icon");
    feedsManager().createSupportDirectories();
    feedsManager().save();
    ASSERT_TRUE(FileManager::fileExists(environment.supportDirectory / "Images"));
    general().resetAllCachesButton->press();
    EXPECT_FALSE(FileManager::fileExists(environment.supportDirectory / "Images"));
    EXPECT_FALSE(FileManager::fileExists(environment.supportDirectory / "Caches"));
    EXPECT_EQ(item->feedImageData(), "icon") << "what is in memory stays";
}

TEST_F(PreferencesWindowTest, AppearanceKeepsOneOfTheIcons) {
    set(preference::legacyMenuIconIndex, std::int64_t(1));
    open();
    auto& shown = pane<PreferencesAppearanceController>(TabKind::appearance);
    EXPECT_FALSE(shown.menuIconStackView[0]->state());
    EXPECT_TRUE(shown.menuIconStackView[1]->state());
    takeRebuilds();
    shown.menuIconStackView[0]->press();
    EXPECT_EQ(environment.defaults->integerForKey(preference::legacyMenuIconIndex), 0);
    EXPECT_FALSE(shown.menuIconStackView[1]->state());
    EXPECT_EQ(takeRebuilds(), 1);
}

TEST_F(PreferencesWindowTest, MenuShowsTheStoredColoursAndStoresTheChosenOnes) {
    open();
    auto& shown = pane<PreferencesMenuController>(TabKind::menu);
    EXPECT_EQ(shown.readArticlesColorWell->color(), Color::systemGray);
    EXPECT_EQ(shown.unreadArticlesColorWell->color(), Color::black);
    takeRebuilds();
    const Color chosen = Color::make("#102030").value();
    shown.readArticlesColorWell->choose(chosen);
    EXPECT_EQ(takeRebuilds(), 1);
    EXPECT_EQ(Color::unarchive(environment.defaults->dataForKey(preference::customColorForReadArticles).value())->hexString(), "#102030");
    shown.unreadArticlesColorWell->choose(chosen);
    EXPECT_EQ(Color::unarchive(environment.defaults->dataForKey(preference::customColorForUnreadArticles).value())->hexString(), "#102030");
}

TEST_F(PreferencesWindowTest, MenuShowsNoColourOfDamagedData) {
    set(preference::customColorForReadArticles, PropertyList::Data{"damaged"});
    open();
    EXPECT_EQ(pane<PreferencesMenuController>(TabKind::menu).readArticlesColorWell->color(), Color());
}

TEST_F(PreferencesWindowTest, MenuStoresTheFontSizeOfThePreview) {
    open();
    auto& shown = pane<PreferencesMenuController>(TabKind::menu);
    EXPECT_EQ(shown.previewFontSizeField->doubleValue(), PlatformDefaults().menuFontSize);
    shown.previewFontSizeField->choose(20);
    EXPECT_EQ(environment.defaults->doubleForKey(preference::customFontSizeForPreview), 20);
}

TEST_F(PreferencesWindowTest, NotificationsListVoicesThatAreFoundLater) {
    const auto voices = std::make_shared<SpeechVoicesFake>();
    voices->list = {{"a", "Anna"}};
    environment.speechVoices = voices;
    remake();
    set(preference::speechVoiceIndex, std::int64_t(1));
    open();
    const auto& shown = pane<PreferencesNotificationsController>(TabKind::notifications);
    EXPECT_EQ(shown.voicesPopUpButton->selectedItem(), nullptr);
    voices->list.push_back({"b", "Bert"});
    voices->observer.lock()->speechVoicesDidChange();
    EXPECT_EQ(shown.voicesPopUpButton->selectedItem()->title(), "Bert");
}

TEST_F(PreferencesWindowTest, NotificationsListTheVoicesInTheirOrder) {
    const auto voices = std::make_shared<SpeechVoicesFake>();
    voices->list = {{"a", "Anna"}, {"b", "Bert"}, {"c", "Cleo"}};
    environment.speechVoices = voices;
    remake();
    set(preference::speechVoiceIndex, std::int64_t(1));
    open();
    auto& shown = pane<PreferencesNotificationsController>(TabKind::notifications);
    EXPECT_THAT(shown.voices(), ElementsAre("Anna", "Bert", "Cleo"));
    EXPECT_EQ(shown.voicesPopUpButton->selectedItem()->title(), "Bert");
    shown.voicesPopUpButton->choose(2);
    EXPECT_EQ(environment.defaults->integerForKey(preference::speechVoiceIndex), 2);
    voices->list.clear();
    open();
    EXPECT_THAT(shown.voicesPopUpButton->menu().items(), IsEmpty());
}

} // namespace brindle
