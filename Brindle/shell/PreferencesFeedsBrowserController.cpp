#include "Brindle/shell/PreferencesFeedsBrowserController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/LocalizedStrings.hpp"

namespace brindle {

PreferencesFeedsBrowserController::PreferencesFeedsBrowserController(const PreferencesEnvironment& environment) {
    const auto checkBox = [&](std::string_view key, std::string title, std::function<void()> didChange = {}) {
        return Row{{}, {std::make_shared<PreferenceCheckBox>(environment.defaults, key, std::move(title), std::move(didChange))}};
    };
    addSection({}, {checkBox(preference::showFeedsBrowser, localized("Show the feeds browser in the status menu"),
                        [environment] { environment.updateMenu(); }),
                       checkBox(preference::hideFBOnStartup, localized("Don't show it when Brindle starts")),
                       checkBox(preference::allowFBOpenFeed, localized("Open feeds in the feeds browser")),
                       checkBox(preference::allowFBOpenArticles, localized("Open articles in windows of their own"))});
}

} // namespace brindle
