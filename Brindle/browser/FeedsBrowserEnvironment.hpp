#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "Brindle/library/CollectionEntityManager.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/Alert.hpp"
#include "platform/ResponderChain.hpp"
#include "platform/Workspace.hpp"

#include <filesystem>
#include <memory>

namespace brindle {

/// What the browser's controllers work on. The owner keeps all of it alive for as long as them.
struct FeedsBrowserEnvironment {
    std::shared_ptr<FeedsManager> feedsManager;
    std::shared_ptr<SavedArticlesManager> savedArticlesManager;
    std::shared_ptr<CollectionEntityManager> collectionEntityManager;
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<ResponderChain> responderChain; ///< takes what is sent without a target
    std::shared_ptr<AlertPresenter> alerts;
    std::shared_ptr<Workspace> workspace;
    std::filesystem::path resources; ///< the folder with the page template
    std::weak_ptr<FeedsBrowserHost> host;

    /// Nothing where the application is gone.
    void refreshInterface() const {
        if (const auto application = host.lock())
            application->refreshInterface();
    }
};

} // namespace brindle
