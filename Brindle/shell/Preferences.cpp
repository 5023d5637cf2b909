#include "Brindle/shell/Preferences.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/Color.hpp"
#include "foundation/FatalError.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

namespace {

/// Absent when the colour can't be archived: then its key has no default.
std::optional<UserDefaults::Value> archived(const Color& color) {
    auto bytes = color.archivedData();
    return bytes ? std::optional<UserDefaults::Value>(PropertyList::Data{*std::move(bytes)}) : std::nullopt;
}

} // namespace

std::string_view name(Preference::Kind kind) {
    switch (kind) {
    case Preference::Kind::boolean:
        return "boolean";
    case Preference::Kind::integer:
        return "integer";
    case Preference::Kind::text:
        return "text";
    case Preference::Kind::color:
        return "color";
    case Preference::Kind::number:
        return "number";
    }
    fatalError("A kind of preference has no name.");
}

std::vector<Preference> preferences(const PlatformDefaults& platform) {
    using Kind = Preference::Kind;
    return {
        {preference::launchOnLogin, Kind::boolean, false},
        {preference::isDefaultReader, Kind::boolean, false},
        {preference::articlesOpensSelectedIndex, Kind::integer, std::int64_t(0)},
        {preference::useVisualNotifications, Kind::boolean, false},
        {preference::useSpeechNotifications, Kind::boolean, false},
        {preference::speechVoiceIndex, Kind::integer, platform.speechVoiceIndex},
        {preference::notifyOnNewArticles, Kind::boolean, true},
        {preference::notifyOnOtherError, Kind::boolean, false},
        {preference::notifyOnAttention, Kind::boolean, true},
        {preference::notifyOnAuthenticationRequest, Kind::boolean, false},
        {preference::useLegacyMenuIcon, Kind::boolean, false},
        {preference::showUnreadArticlesInMenu, Kind::boolean, true},
        {preference::showUnreadArticlesInFeeds, Kind::boolean, true},
        {preference::showUnreadArticlesInGroups, Kind::boolean, true},
        {preference::showUpdateAll, Kind::boolean, true},
        {preference::showMarkAllRead, Kind::boolean, true},
        {preference::showMarkAllUnread, Kind::boolean, false},
        {preference::showOpenAllUnread, Kind::boolean, true},
        {preference::warnWhenOpeningArticles, Kind::boolean, true},
        {preference::showFeedsBrowser, Kind::boolean, true},
        {preference::markMenuItems, Kind::boolean, true},
        {preference::markMenuItemsWhenRead, Kind::boolean, false},
        {preference::useShortArticleNames, Kind::boolean, false},
        {preference::allowFeedArticlePreview, Kind::boolean, true},
        {preference::allowCustomColorForReadArticles, Kind::boolean, false},
        {preference::allowCustomColorForUnreadArticles, Kind::boolean, false},
        {preference::allowCustomTextSizeForArticles, Kind::boolean, false},
        {preference::customColorForReadArticles, Kind::color, archived(Color::systemGray)},
        {preference::customColorForUnreadArticles, Kind::color, archived(Color::black)},
        {preference::customTextSizeForArticles, Kind::number, platform.systemFontSize},
        {preference::allowBoldTextForUnreadArticles, Kind::boolean, false},
        {preference::useCustomFontSizeForPreview, Kind::boolean, false},
        {preference::customFontSizeForPreview, Kind::number, platform.menuFontSize},
        // Kept as is: a text whose default is a number, which stands for no panel.
        {preference::lastSelectedPrefsPanel, Kind::text, std::int64_t(0)},
        {preference::addedDefaultFeed, Kind::boolean, false},
        {preference::askedSetAsDefaultFeedReader, Kind::boolean, false},
        {preference::previousFeedReader, Kind::text, std::string()},
        {preference::isFrstLaunch, Kind::boolean, true},
        {preference::savedFeedsUpdateState, Kind::boolean, true},
        {preference::hideFBOnStartup, Kind::boolean, false},
        {preference::allowFBOpenFeed, Kind::boolean, true},
        {preference::allowFBOpenArticles, Kind::boolean, true},
        {preference::showBadgeInDock, Kind::boolean, true},
        {preference::hideInDock, Kind::boolean, false},
        {preference::showTodayCollectionInMenu, Kind::boolean, true},
        {preference::showTodayCollectionInFeedsBrowser, Kind::boolean, true},
        {preference::showUnreadCollectionInMenu, Kind::boolean, true},
        {preference::showUnreadCollectionInFeedsBrowser, Kind::boolean, true},
        {preference::showSavedArticlesCollectionInMenu, Kind::boolean, true},
        {preference::showSavedArticlesCollectionInFeedsBrowser, Kind::boolean, true},
        {preference::legacyMenuIconIndex, Kind::integer, std::nullopt},
        {preference::previousDefaultRSSReader, Kind::text, std::nullopt},
        {preference::showOriginalArticle, Kind::boolean, std::nullopt},
    };
}

void registerDefaults(UserDefaults& defaults, const PlatformDefaults& platform) {
    std::vector<std::pair<std::string, UserDefaults::Value>> values;
    for (const Preference& preference : preferences(platform)) {
        if (preference.defaultValue)
            values.emplace_back(preference.key, *preference.defaultValue);
    }
    defaults.registerDefaults(values);
}

std::int64_t speechVoiceIndex(std::string_view defaultVoice, const std::vector<std::string>& availableVoices) {
    const auto found = std::find(availableVoices.begin(), availableVoices.end(), defaultVoice);
    return found == availableVoices.end() ? 0 : found - availableVoices.begin();
}

std::string statusIconName(const UserDefaults& defaults, bool hasUnreadArticles) {
    std::string name = "menu_feed";
    if (defaults.boolForKey(preference::useLegacyMenuIcon)) {
        // Kept as is: an index of 2 or more gives the usual icon.
        const std::int64_t index = defaults.integerForKey(preference::legacyMenuIconIndex);
        if (index == 0)
            name = "menu_legacy";
        else if (index == 1)
            name = "menu_feed_alternate";
    }
    return hasUnreadArticles ? name + "_alt" : name;
}

} // namespace brindle
