#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "platform/Alert.hpp"

#include <memory>

namespace brindle {

/// What the window that adds and changes feeds works on. The owner keeps all of it alive for as long as the window.
struct NewFeedEnvironment {
    std::shared_ptr<FeedsManager> feedsManager;
    std::shared_ptr<AlertPresenter> alerts;
    std::weak_ptr<FeedsBrowserHost> host;

    /// Nothing where the application is gone.
    void refreshInterface() const {
        if (const auto application = host.lock())
            application->refreshInterface();
    }
};

} // namespace brindle
