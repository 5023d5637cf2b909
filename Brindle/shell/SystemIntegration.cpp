#include "Brindle/shell/SystemIntegration.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/Console.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>

namespace brindle {

void SystemIntegration::askSetAsDefaultFeedReader(std::function<void()> completion) {
    assertMainThread();
    UserDefaults& defaults = *_environment.defaults;
    if (defaults.boolForKey(preference::askedSetAsDefaultFeedReader) || !_environment.bundleIdentifier)
        return completion();
    const auto handler = _environment.launchServices->defaultHandler(feedScheme);
    // Kept as is: a program that has the scheme is left alone, and the question is not asked at a later launch either.
    if (handler && handler != _environment.bundleIdentifier)
        return completion();
    defaults.set(preference::askedSetAsDefaultFeedReader, true);
    _environment.application->activate();
    const Alert question = {localized("askForDefaultFeedReaderTitle"), localized("askForDefaultFeedReaderMessage"),
        {localized("buttonOK"), localized("buttonCancel")}};
    _environment.alerts->runModal(question, [integration = weak_from_this(), handler, completion = std::move(completion)](int response) {
        const auto self = integration.lock();
        if (self && response == Alert::firstButtonReturn)
            self->becomeDefaultFeedReader(handler);
        completion();
    });
}

void SystemIntegration::becomeDefaultFeedReader(const std::optional<std::string>& previous) {
    if (previous)
        _environment.defaults->set(preference::previousFeedReader, *previous);
    _environment.launchServices->setDefaultHandler(feedScheme, *_environment.bundleIdentifier);
    _environment.defaults->set(preference::isDefaultReader, true);
}

bool SystemIntegration::isDefaultFeedReader() const {
    return _environment.bundleIdentifier && _environment.launchServices->defaultHandler(feedScheme) == _environment.bundleIdentifier;
}

void SystemIntegration::toggleDefaultFeedReader(bool isOn) {
    assertMainThread();
    UserDefaults& defaults = *_environment.defaults;
    LaunchServices& launchServices = *_environment.launchServices;
    if (isOn) {
        if (!_environment.bundleIdentifier)
            return;
        // Kept as is: not the key that the question at the first launch stores its predecessor under, so that one never comes back.
        const auto handler = launchServices.defaultHandler(feedScheme);
        if (handler && handler != _environment.bundleIdentifier)
            defaults.set(preference::previousDefaultRSSReader, *handler);
        launchServices.setDefaultHandler(feedScheme, *_environment.bundleIdentifier);
    } else {
        const auto previous = defaults.stringForKey(preference::previousDefaultRSSReader);
        if (previous && !previous->empty())
            launchServices.setDefaultHandler(feedScheme, *previous);
    }
    defaults.set(preference::isDefaultReader, isOn);
}

void SystemIntegration::toggleLaunchOnLogin(bool isOn) {
    _environment.defaults->set(preference::launchOnLogin, isOn);
    setLaunchOnLogin(isOn);
}

void SystemIntegration::setLaunchOnLogin(bool isOn) {
    assertMainThread();
    if (!_environment.loginItem->setEnabled(_environment.launcherApplicationBundleID, isOn))
        Console::print("Could not set launch on login");
}

void SystemIntegration::terminateLauncherIfRunning() {
    assertMainThread();
    const auto running = _environment.runningApplications->bundleIdentifiers();
    if (std::find(running.begin(), running.end(), _environment.launcherApplicationBundleID) != running.end())
        _environment.distributedNotificationCenter->post(terminateLauncherNotification, _environment.bundleIdentifier);
}

void SystemIntegration::toggleBackgroundOnly(bool isOn, std::function<void(bool)> setButton) {
    assertMainThread();
    const bool wasOn = _environment.defaults->boolForKey(preference::hideInDock);
    const Alert question = {localized("Restart required!"),
        localized("This operation will take effect when you restart Brindle. Do you still want to change it?"),
        {localized("OK"), localized("Cancel")}};
    _environment.alerts->beginSheet(
        question, [integration = weak_from_this(), isOn, wasOn, setButton = std::move(setButton)](int response) {
            if (const auto self = integration.lock(); self && response == Alert::firstButtonReturn) {
                self->_environment.defaults->set(preference::hideInDock, isOn);
                static_cast<void>(self->_environment.defaults->synchronize());
            } else if (response == Alert::firstButtonReturn + 1) {
                setButton(wasOn);
            }
        });
}

} // namespace brindle
