#include "Brindle/shell/PreferencesCollectionsViewController.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/LocalizedStrings.hpp"

namespace brindle {

PreferencesCollectionsViewController::PreferencesCollectionsViewController(const PreferencesEnvironment& environment) {
    const auto toggleCollections = [environment] {
        environment.refreshInterface();
        NotificationCenter::defaultCenter().post(notices::didUpdateCollections, nullptr);
    };
    const auto addCollection = [&](std::string title, std::string_view menuKey, std::string_view browserKey) {
        addSection(std::move(title), {{{}, {std::make_shared<PreferenceCheckBox>(
                                               environment.defaults, menuKey, localized("In the status menu"), toggleCollections)}},
                                         {{}, {std::make_shared<PreferenceCheckBox>(environment.defaults, browserKey,
                                                  localized("In the feeds browser"), toggleCollections)}}});
    };
    addCollection(localized("Today"), preference::showTodayCollectionInMenu, preference::showTodayCollectionInFeedsBrowser);
    addCollection(localized("Unread Articles"), preference::showUnreadCollectionInMenu, preference::showUnreadCollectionInFeedsBrowser);
    addCollection(
        localized("Saved Articles"), preference::showSavedArticlesCollectionInMenu, preference::showSavedArticlesCollectionInFeedsBrowser);
}

} // namespace brindle
