#include "Brindle/shell/PreferencesAppearanceController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <utility>

namespace brindle {

PreferencesAppearanceController::PreferencesAppearanceController(PreferencesEnvironment environment)
    : menuIconStackView({std::make_shared<Button>(Button::Kind::radio, localized("Classic icon")),
          std::make_shared<Button>(Button::Kind::radio, localized("Alternate icon"))}),
      _environment(std::move(environment)) {
    const auto checkBox = [this](std::string_view key, std::string title) {
        return Row{{}, {std::make_shared<PreferenceCheckBox>(
                           _environment.defaults, key, std::move(title), [from = _environment] { from.updateMenu(); })}};
    };
    addSection(localized("Status icon"), {checkBox(preference::useLegacyMenuIcon, localized("Use another icon")),
                                             {{}, {menuIconStackView.begin(), menuIconStackView.end()}}});
    addSection(localized("Number of unread articles"),
        {checkBox(preference::showUnreadArticlesInMenu, localized("Show it beside the status icon")),
            checkBox(preference::showUnreadArticlesInFeeds, localized("Show it after the names of feeds")),
            checkBox(preference::showUnreadArticlesInGroups, localized("Show it after the names of groups"))});
    addSection(localized("Commands for all feeds"), {checkBox(preference::showUpdateAll, localized("updateAllMenuTitle")),
                                                        checkBox(preference::showMarkAllRead, localized("markAllReadMenuTitle")),
                                                        checkBox(preference::showMarkAllUnread, localized("markAllUnreadMenuTitle")),
                                                        checkBox(preference::showOpenAllUnread, localized("openAllUnreadMenuTitle"))});
    for (std::size_t tag = 0; tag < menuIconStackView.size(); ++tag)
        menuIconStackView[tag]->onPress = [this, tag] { menuIconIndexSelected(tag); };
    showMenuIconIndex();
}

void PreferencesAppearanceController::menuIconIndexSelected(std::size_t tag) {
    _environment.defaults->set(preference::legacyMenuIconIndex, static_cast<std::int64_t>(tag));
    showMenuIconIndex();
    _environment.updateMenu();
}

void PreferencesAppearanceController::showMenuIconIndex() {
    const std::int64_t index = _environment.defaults->integerForKey(preference::legacyMenuIconIndex);
    for (std::size_t tag = 0; tag < menuIconStackView.size(); ++tag)
        menuIconStackView[tag]->setState(std::cmp_equal(tag, index));
}

} // namespace brindle
