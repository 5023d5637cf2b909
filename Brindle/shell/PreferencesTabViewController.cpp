#include "Brindle/shell/PreferencesTabViewController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferencesAppearanceController.hpp"
#include "Brindle/shell/PreferencesCollectionsViewController.hpp"
#include "Brindle/shell/PreferencesFeedsBrowserController.hpp"
#include "Brindle/shell/PreferencesGeneralController.hpp"
#include "Brindle/shell/PreferencesMenuController.hpp"
#include "Brindle/shell/PreferencesNotificationsController.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

std::shared_ptr<PreferencesTabViewController> PreferencesTabViewController::make(
    const PreferencesEnvironment& environment, std::shared_ptr<Window> window) {
    return std::shared_ptr<PreferencesTabViewController>(new PreferencesTabViewController(environment, std::move(window)));
}

PreferencesTabViewController::PreferencesTabViewController(const PreferencesEnvironment& environment, std::shared_ptr<Window> window)
    : _defaults(environment.defaults), _window(std::move(window)),
      _tabViewItems{{
          {"general", localized("General"), PreferencesGeneralController::make(environment)},
          {"appearance", localized("Appearance"), std::make_shared<PreferencesAppearanceController>(environment)},
          {"menu", localized("Menu"), std::make_shared<PreferencesMenuController>(environment)},
          {"feedsBrowser", localized("Feeds Browser"), std::make_shared<PreferencesFeedsBrowserController>(environment)},
          {"collections", localized("Collections"), std::make_shared<PreferencesCollectionsViewController>(environment)},
          {"notifications", localized("Notifications"), std::make_shared<PreferencesNotificationsController>(environment)},
      }} {}

void PreferencesTabViewController::viewDidLoad() {
    if (const auto tabs = tabView.lock())
        tabs->setDelegate(weak_from_this());
}

/// Absent for a stored tab that there is no more: the one that the tab view shows stays.
std::optional<std::size_t> PreferencesTabViewController::tabToSelect() const {
    if (selectedTabKind)
        return static_cast<std::size_t>(*selectedTabKind);
    const auto last = _defaults->stringForKey(preference::lastSelectedPrefsPanel);
    if (!last)
        return 0;
    const auto* const found =
        std::find_if(_tabViewItems.begin(), _tabViewItems.end(), [&](const TabItem& item) { return item.identifier == *last; });
    return found == _tabViewItems.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - _tabViewItems.begin()));
}

void PreferencesTabViewController::viewWillAppear() {
    assertMainThread();
    const auto tabs = tabView.lock();
    if (!tabs)
        return;
    if (const auto index = tabToSelect())
        tabs->selectTab(*index);
    const std::size_t shown = tabs->selectedTab().value_or(0);
    _tabViewItems[shown].pane->viewWillAppear();
    _window->setTitle(_tabViewItems[shown].label);
    resizeWindow(shown);
}

void PreferencesTabViewController::willSelectTab(std::size_t index) {
    const auto tabs = tabView.lock();
    if (tabs && !_tabViewSizes.contains(index))
        _tabViewSizes[index] = tabs->viewSize(index);
    _tabViewItems[index].pane->viewWillAppear();
}

void PreferencesTabViewController::didSelectTab(std::size_t index) {
    assertMainThread();
    _defaults->set(preference::lastSelectedPrefsPanel, std::string(_tabViewItems[index].identifier));
    static_cast<void>(_defaults->synchronize());
    _window->setTitle(_tabViewItems[index].label);
    resizeWindow(index);
}

void PreferencesTabViewController::resizeWindow(std::size_t index) {
    if (!_tabViewSizes.contains(index)) {
        if (const auto tabs = tabView.lock())
            _tabViewSizes[index] = tabs->viewSize(index);
    }
    _window->setContentSize(_tabViewSizes[index]);
}

} // namespace brindle
