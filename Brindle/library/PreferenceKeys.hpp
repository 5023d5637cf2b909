#pragma once

#include <string_view>

/// The keys of the preferences, as they are stored. What stands under each, and its default, tells the table in the shell.
namespace brindle::preference {

inline constexpr std::string_view launchOnLogin = "launchOnLogin";
inline constexpr std::string_view isDefaultReader = "isDefaultReader";
inline constexpr std::string_view articlesOpensSelectedIndex = "articlesOpensSelectedIndex";
inline constexpr std::string_view useVisualNotifications = "useVisualNotifications";
inline constexpr std::string_view useSpeechNotifications = "useSpeechNotifications";
inline constexpr std::string_view speechVoiceIndex = "speechVoiceIndex";
inline constexpr std::string_view notifyOnNewArticles = "notifyOnNewArticles";
inline constexpr std::string_view notifyOnOtherError = "notifyOnOtherError";
inline constexpr std::string_view notifyOnAttention = "notifyOnAttention";
inline constexpr std::string_view notifyOnAuthenticationRequest = "notifyOnAuthenticationRequest";
inline constexpr std::string_view useLegacyMenuIcon = "useLegacyMenuIcon";
inline constexpr std::string_view showUnreadArticlesInMenu = "showUnreadArticlesInMenu";
inline constexpr std::string_view showUnreadArticlesInFeeds = "showUnreadArticlesInFeeds";
inline constexpr std::string_view showUnreadArticlesInGroups = "showUnreadArticlesInGroups";
inline constexpr std::string_view showUpdateAll = "showUpdateAll";
inline constexpr std::string_view showMarkAllRead = "showMarkAllRead";
inline constexpr std::string_view showMarkAllUnread = "showMarkAllUnread";
inline constexpr std::string_view showOpenAllUnread = "showOpenAllUnread";
inline constexpr std::string_view warnWhenOpeningArticles = "warnWhenOpeningArticles";
inline constexpr std::string_view showFeedsBrowser = "showFeedsBrowser";
inline constexpr std::string_view markMenuItems = "markMenuItems";
inline constexpr std::string_view markMenuItemsWhenRead = "markMenuItemsWhenRead";
inline constexpr std::string_view useShortArticleNames = "useShortArticleNames";
inline constexpr std::string_view allowFeedArticlePreview = "allowFeedArticlePreview";
inline constexpr std::string_view allowCustomColorForReadArticles = "allowCustomColorForReadArticles";
inline constexpr std::string_view allowCustomColorForUnreadArticles = "allowCustomColorForUnreadArticles";
inline constexpr std::string_view allowCustomTextSizeForArticles = "allowCustomTextSizeForArticles";
inline constexpr std::string_view customColorForReadArticles = "customColorForReadArticles";
inline constexpr std::string_view customColorForUnreadArticles = "customColorForUnreadArticles";
inline constexpr std::string_view customTextSizeForArticles = "customTextSizeForArticles";
inline constexpr std::string_view allowBoldTextForUnreadArticles = "allowBoldTextForUnreadArticles";
inline constexpr std::string_view useCustomFontSizeForPreview = "useCustomFontSizeForPreview";
inline constexpr std::string_view customFontSizeForPreview = "customFontSizeForPreview";
inline constexpr std::string_view lastSelectedPrefsPanel = "lastSelectedPrefsPanel";
inline constexpr std::string_view addedDefaultFeed = "addedDefaultFeed";
inline constexpr std::string_view askedSetAsDefaultFeedReader = "askedSetAsDefaultFeedReader";
inline constexpr std::string_view previousFeedReader = "previousFeedReader";
inline constexpr std::string_view isFrstLaunch = "isFrstLaunch"; ///< Kept as is: stored under this misspelling
inline constexpr std::string_view savedFeedsUpdateState = "savedFeedsUpdateState";
inline constexpr std::string_view hideFBOnStartup = "hideFBOnStartup";
inline constexpr std::string_view allowFBOpenFeed = "allowFBOpenFeed";
inline constexpr std::string_view allowFBOpenArticles = "allowFBOpenArticles";
inline constexpr std::string_view showBadgeInDock = "showBadgeInDock";
inline constexpr std::string_view hideInDock = "hideInDock";
inline constexpr std::string_view showTodayCollectionInMenu = "showTodayCollectionInMenu";
inline constexpr std::string_view showTodayCollectionInFeedsBrowser = "showTodayCollectionInFeedsBrowser";
inline constexpr std::string_view showUnreadCollectionInMenu = "showUnreadCollectionInMenu";
inline constexpr std::string_view showUnreadCollectionInFeedsBrowser = "showUnreadCollectionInFeedsBrowser";
inline constexpr std::string_view showSavedArticlesCollectionInMenu = "showSavedArticlesCollectionInMenu";
inline constexpr std::string_view showSavedArticlesCollectionInFeedsBrowser = "showSavedArticlesCollectionInFeedsBrowser";
inline constexpr std::string_view legacyMenuIconIndex = "legacyMenuIconIndex";
inline constexpr std::string_view previousDefaultRSSReader = "previousDefaultRSSReader";
inline constexpr std::string_view showOriginalArticle = "show_original_article";

} // namespace brindle::preference
