#include "Brindle/shell/Preferences.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/Color.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using Kind = Preference::Kind;

class PreferencesTest : public ::testing::Test {
protected:
    PreferencesTest() { registerDefaults(defaults); }

    /// The keys with a default of true, or of false, in their order.
    static std::vector<std::string_view> keysOf(std::optional<bool> value) {
        std::vector<std::string_view> keys;
        for (const Preference& preference : preferences()) {
            const auto* const flag = preference.defaultValue ? std::get_if<bool>(&*preference.defaultValue) : nullptr;
            if (preference.kind == Kind::boolean && (flag != nullptr ? std::optional(*flag) : std::nullopt) == value)
                keys.push_back(preference.key);
        }
        return keys;
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder / "Preferences.plist"};
};

TEST_F(PreferencesTest, StandInTheOrderOfRegistration) {
    std::vector<std::string_view> keys;
    for (const Preference& preference : preferences())
        keys.push_back(preference.key);
    EXPECT_THAT(
        keys, ::testing::ElementsAreArray({"launchOnLogin", "isDefaultReader", "articlesOpensSelectedIndex", "useVisualNotifications",
                  "useSpeechNotifications", "speechVoiceIndex", "notifyOnNewArticles", "notifyOnOtherError", "notifyOnAttention",
                  "notifyOnAuthenticationRequest", "useLegacyMenuIcon", "showUnreadArticlesInMenu", "showUnreadArticlesInFeeds",
                  "showUnreadArticlesInGroups", "showUpdateAll", "showMarkAllRead", "showMarkAllUnread", "showOpenAllUnread",
                  "warnWhenOpeningArticles", "showFeedsBrowser", "markMenuItems", "markMenuItemsWhenRead", "useShortArticleNames",
                  "allowFeedArticlePreview", "allowCustomColorForReadArticles", "allowCustomColorForUnreadArticles",
                  "allowCustomTextSizeForArticles", "customColorForReadArticles", "customColorForUnreadArticles",
                  "customTextSizeForArticles", "allowBoldTextForUnreadArticles", "useCustomFontSizeForPreview", "customFontSizeForPreview",
                  "lastSelectedPrefsPanel", "addedDefaultFeed", "askedSetAsDefaultFeedReader", "previousFeedReader", "isFrstLaunch",
                  "savedFeedsUpdateState", "hideFBOnStartup", "allowFBOpenFeed", "allowFBOpenArticles", "showBadgeInDock", "hideInDock",
                  "showTodayCollectionInMenu", "showTodayCollectionInFeedsBrowser", "showUnreadCollectionInMenu",
                  "showUnreadCollectionInFeedsBrowser", "showSavedArticlesCollectionInMenu", "showSavedArticlesCollectionInFeedsBrowser",
                  "legacyMenuIconIndex", "previousDefaultRSSReader", "show_original_article"}));
}

TEST_F(PreferencesTest, TheseAreTrueUnlessSet) {
    EXPECT_THAT(
        keysOf(true), ElementsAre("notifyOnNewArticles", "notifyOnAttention", "showUnreadArticlesInMenu", "showUnreadArticlesInFeeds",
                          "showUnreadArticlesInGroups", "showUpdateAll", "showMarkAllRead", "showOpenAllUnread", "warnWhenOpeningArticles",
                          "showFeedsBrowser", "markMenuItems", "allowFeedArticlePreview", "isFrstLaunch", "savedFeedsUpdateState",
                          "allowFBOpenFeed", "allowFBOpenArticles", "showBadgeInDock", "showTodayCollectionInMenu",
                          "showTodayCollectionInFeedsBrowser", "showUnreadCollectionInMenu", "showUnreadCollectionInFeedsBrowser",
                          "showSavedArticlesCollectionInMenu", "showSavedArticlesCollectionInFeedsBrowser"));
}

TEST_F(PreferencesTest, TheseAreFalseUnlessSet) {
    EXPECT_THAT(keysOf(false),
        ElementsAre("launchOnLogin", "isDefaultReader", "useVisualNotifications", "useSpeechNotifications", "notifyOnOtherError",
            "notifyOnAuthenticationRequest", "useLegacyMenuIcon", "showMarkAllUnread", "markMenuItemsWhenRead", "useShortArticleNames",
            "allowCustomColorForReadArticles", "allowCustomColorForUnreadArticles", "allowCustomTextSizeForArticles",
            "allowBoldTextForUnreadArticles", "useCustomFontSizeForPreview", "addedDefaultFeed", "askedSetAsDefaultFeedReader",
            "hideFBOnStartup", "hideInDock"));
}

TEST_F(PreferencesTest, ThreeAreNeverRegistered) {
    std::vector<std::string_view> keys;
    for (const Preference& preference : preferences()) {
        if (!preference.defaultValue)
            keys.push_back(preference.key);
    }
    EXPECT_THAT(keys, ElementsAre("legacyMenuIconIndex", "previousDefaultRSSReader", "show_original_article"));
    EXPECT_FALSE(defaults.boolForKey(preference::showOriginalArticle));
    EXPECT_EQ(defaults.integerForKey(preference::legacyMenuIconIndex), 0);
    EXPECT_EQ(defaults.stringForKey(preference::previousDefaultRSSReader), std::nullopt);
}

TEST_F(PreferencesTest, TheRestHaveTheirKindsAndDefaults) {
    EXPECT_EQ(defaults.object(preference::articlesOpensSelectedIndex), UserDefaults::Value(std::int64_t(0)));
    EXPECT_EQ(defaults.object(preference::speechVoiceIndex), UserDefaults::Value(std::int64_t(0)));
    EXPECT_EQ(defaults.object(preference::customTextSizeForArticles), UserDefaults::Value(13.0));
    EXPECT_EQ(defaults.object(preference::customFontSizeForPreview), UserDefaults::Value(14.0));
    EXPECT_EQ(defaults.object(preference::lastSelectedPrefsPanel), UserDefaults::Value(std::int64_t(0)));
    EXPECT_EQ(defaults.object(preference::previousFeedReader), UserDefaults::Value(std::string()));
    EXPECT_EQ(Color::unarchive(*defaults.dataForKey(preference::customColorForReadArticles)), Color::systemGray);
    EXPECT_EQ(Color::unarchive(*defaults.dataForKey(preference::customColorForUnreadArticles)), Color::black);
    std::vector<std::string_view> kinds;
    for (const Preference& preference : preferences()) {
        if (preference.kind != Kind::boolean)
            kinds.push_back(name(preference.kind));
    }
    EXPECT_THAT(kinds, ElementsAre("integer", "integer", "color", "color", "number", "number", "text", "text", "integer", "text"));
    EXPECT_EQ(name(Kind::boolean), "boolean");
}

TEST_F(PreferencesTest, TheDesktopGivesItsOwnDefaults) {
    registerDefaults(defaults, {3, 11, 12.5});
    EXPECT_EQ(defaults.integerForKey(preference::speechVoiceIndex), 3);
    EXPECT_EQ(defaults.doubleForKey(preference::customTextSizeForArticles), 11);
    EXPECT_EQ(defaults.doubleForKey(preference::customFontSizeForPreview), 12.5);
}

TEST_F(PreferencesTest, RegisteringWritesNothing) {
    EXPECT_TRUE(defaults.isDefault(preference::isFrstLaunch));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(PreferencesTest, TheVoiceIsTheFirstThatIsTheSystemsDefault) {
    EXPECT_EQ(speechVoiceIndex("b", {"a", "b", "b"}), 1);
    EXPECT_EQ(speechVoiceIndex("a", {"a", "b"}), 0);
    EXPECT_EQ(speechVoiceIndex("c", {"a", "b"}), 0);
    EXPECT_EQ(speechVoiceIndex("c", {}), 0);
}

TEST_F(PreferencesTest, TheStatusIconFollowsTheIndexWhereAnAlternativeIsUsed) {
    EXPECT_EQ(statusIconName(defaults, false), "menu_feed");
    defaults.set(preference::useLegacyMenuIcon, true);
    EXPECT_EQ(statusIconName(defaults, false), "menu_legacy");
    defaults.set(preference::legacyMenuIconIndex, std::int64_t(1));
    EXPECT_EQ(statusIconName(defaults, false), "menu_feed_alternate");
    defaults.set(preference::useLegacyMenuIcon, false);
    EXPECT_EQ(statusIconName(defaults, false), "menu_feed");
}

TEST_F(PreferencesTest, AnIndexOfNoAlternativeGivesTheUsualStatusIcon) {
    defaults.set(preference::useLegacyMenuIcon, true);
    for (const std::int64_t index : {std::int64_t(2), std::int64_t(3), std::numeric_limits<std::int64_t>::max(), std::int64_t(-1)}) {
        defaults.set(preference::legacyMenuIconIndex, index);
        EXPECT_EQ(statusIconName(defaults, false), "menu_feed") << index;
    }
}

TEST_F(PreferencesTest, TheStatusIconTellsOfUnreadArticles) {
    EXPECT_EQ(statusIconName(defaults, true), "menu_feed_alt");
    defaults.set(preference::useLegacyMenuIcon, true);
    EXPECT_EQ(statusIconName(defaults, true), "menu_legacy_alt");
    defaults.set(preference::legacyMenuIconIndex, std::int64_t(1));
    EXPECT_EQ(statusIconName(defaults, true), "menu_feed_alternate_alt");
}

} // namespace
} // namespace brindle
