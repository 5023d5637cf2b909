#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/shell/SystemIntegration.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/SpeechSynthesizer.hpp"

#include <functional>
#include <memory>

namespace brindle {

/// What the window of the preferences works on. The owner keeps all of it alive for as long as the window.
struct PreferencesEnvironment {
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<FeedsManager> feedsManager;
    std::shared_ptr<SystemIntegration> systemIntegration;
    std::shared_ptr<SpeechVoices> speechVoices;
    std::function<void()> updateDockBadge;
    std::weak_ptr<FeedsBrowserHost> host;

    /// Nothing where the application is gone.
    void updateMenu() const {
        if (const auto application = host.lock())
            application->updateMenu();
    }
    /// Nothing where the application is gone.
    void refreshInterface() const {
        if (const auto application = host.lock())
            application->refreshInterface();
    }
};

} // namespace brindle
