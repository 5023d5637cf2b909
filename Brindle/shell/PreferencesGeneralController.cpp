#include "Brindle/shell/PreferencesGeneralController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

namespace {

std::shared_ptr<Button> checkBox(std::string title) {
    return std::make_shared<Button>(Button::Kind::checkBox, std::move(title));
}

std::shared_ptr<Button> radioButton(std::string title) {
    return std::make_shared<Button>(Button::Kind::radio, std::move(title));
}

std::shared_ptr<Button> pushButton(std::string title) {
    return std::make_shared<Button>(Button::Kind::push, std::move(title));
}

} // namespace

std::shared_ptr<PreferencesGeneralController> PreferencesGeneralController::make(PreferencesEnvironment environment) {
    const std::shared_ptr<PreferencesGeneralController> controller(new PreferencesGeneralController(std::move(environment)));
    controller->connect();
    return controller;
}

PreferencesGeneralController::PreferencesGeneralController(PreferencesEnvironment environment)
    : setDefaultFeedReaderButton(checkBox(localized("Use Brindle as the default feed reader"))),
      launchOnLoginButton(checkBox(localized("Open Brindle at login"))),
      showBadgeInDockButton(checkBox(localized("Show the number of unread articles on the dock icon"))),
      hideInDockButton(checkBox(localized("Hide Brindle in the dock"))),
      articleOpensStackView(
          {radioButton(localized("Open the article")), radioButton(localized("Play its audio or video, if there is any"))}),
      resetIconCacheButton(pushButton(localized("Reset Icons"))), resetAllCachesButton(pushButton(localized("Reset All Caches"))),
      _environment(std::move(environment)) {
    addSection(localized("System"),
        {{{}, {setDefaultFeedReaderButton}}, {{}, {launchOnLoginButton}}, {{}, {showBadgeInDockButton}}, {{}, {hideInDockButton}}});
    addSection(localized("When an article is chosen"), {{{}, {articleOpensStackView[0]}}, {{}, {articleOpensStackView[1]}}});
    addSection(localized("When many articles are opened"),
        {{{}, {std::make_shared<PreferenceCheckBox>(
                  _environment.defaults, preference::warnWhenOpeningArticles, localized("Ask before opening five articles or more"))}}});
    addSection(localized("What is kept of the feeds"), {{{}, {resetIconCacheButton, resetAllCachesButton}}});
}

void PreferencesGeneralController::connect() {
    const auto press = [this](Button& button, auto action) {
        button.onPress = [controller = weak_from_this(), action] {
            if (const auto self = controller.lock())
                action(*self);
        };
    };
    press(*setDefaultFeedReaderButton, [](auto& self) { self.toggleDefaultFeedReader(); });
    press(*launchOnLoginButton, [](auto& self) { self.toggleLaunchOnLogin(); });
    press(*showBadgeInDockButton, [](auto& self) { self.toggleDockBadge(); });
    press(*hideInDockButton, [](auto& self) { self.toggleBackgroundOnly(); });
    for (std::size_t tag = 0; tag < articleOpensStackView.size(); ++tag)
        press(*articleOpensStackView[tag], [tag](auto& self) { self.updateArticleOpens(tag); });
    press(*resetIconCacheButton, [](auto& self) { self.resetIconCache(); });
    press(*resetAllCachesButton, [](auto& self) { self.resetAllCaches(); });
}

void PreferencesGeneralController::viewWillAppear() {
    assertMainThread();
    const UserDefaults& defaults = *_environment.defaults;
    setDefaultFeedReaderButton->setState(
        _environment.systemIntegration->isDefaultFeedReader() || defaults.boolForKey(preference::isDefaultReader));
    launchOnLoginButton->setState(defaults.boolForKey(preference::launchOnLogin));
    showBadgeInDockButton->setState(defaults.boolForKey(preference::showBadgeInDock));
    hideInDockButton->setState(defaults.boolForKey(preference::hideInDock));
    showArticleOpens();
}

void PreferencesGeneralController::showArticleOpens() {
    const std::int64_t index = _environment.defaults->integerForKey(preference::articlesOpensSelectedIndex);
    for (std::size_t tag = 0; tag < articleOpensStackView.size(); ++tag)
        articleOpensStackView[tag]->setState(std::cmp_equal(tag, index));
}

void PreferencesGeneralController::toggleDefaultFeedReader() {
    _environment.systemIntegration->toggleDefaultFeedReader(setDefaultFeedReaderButton->state());
}

void PreferencesGeneralController::toggleLaunchOnLogin() {
    _environment.systemIntegration->toggleLaunchOnLogin(launchOnLoginButton->state());
}

void PreferencesGeneralController::toggleDockBadge() {
    _environment.defaults->set(preference::showBadgeInDock, showBadgeInDockButton->state());
    _environment.updateDockBadge();
}

void PreferencesGeneralController::toggleBackgroundOnly() {
    _environment.systemIntegration->toggleBackgroundOnly(
        hideInDockButton->state(), [button = hideInDockButton](bool state) { button->setState(state); });
}

void PreferencesGeneralController::updateArticleOpens(std::size_t tag) {
    _environment.defaults->set(preference::articlesOpensSelectedIndex, static_cast<std::int64_t>(tag));
    showArticleOpens();
}

void PreferencesGeneralController::resetIconCache() {
    _environment.feedsManager->clearImages(_environment.feedsManager->feeds);
}

void PreferencesGeneralController::resetAllCaches() {
    _environment.feedsManager->resetCaches();
}

} // namespace brindle
