#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"
#include "platform/Button.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindle {

/// The general preferences: ties to the desktop, how articles open, and what is kept of the feeds. Thread: main.
class PreferencesGeneralController : public PreferencesPane, public std::enable_shared_from_this<PreferencesGeneralController> {
public:
    static std::shared_ptr<PreferencesGeneralController> make(PreferencesEnvironment environment);

    const std::shared_ptr<Button> setDefaultFeedReaderButton;
    const std::shared_ptr<Button> launchOnLoginButton;
    const std::shared_ptr<Button> showBadgeInDockButton;
    const std::shared_ptr<Button> hideInDockButton;
    const std::vector<std::shared_ptr<Button>> articleOpensStackView; ///< a button's tag is its index
    const std::shared_ptr<Button> resetIconCacheButton;
    const std::shared_ptr<Button> resetAllCachesButton;

    void viewWillAppear() override;

    void toggleDefaultFeedReader();
    void toggleLaunchOnLogin();
    void toggleDockBadge();
    /// Asks first.
    void toggleBackgroundOnly();
    void updateArticleOpens(std::size_t tag);
    void resetIconCache();
    void resetAllCaches();

private:
    explicit PreferencesGeneralController(PreferencesEnvironment environment);
    void connect();
    void showArticleOpens();

    const PreferencesEnvironment _environment;
};

} // namespace brindle
