#pragma once

#include "Brindle/shell/WindowFactory.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "desktop/windows/QtWindow.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "platform/Alert.hpp"

#include <memory>
#include <vector>

namespace brindle::desktop {

class ArticleWindow;

/// Makes the program's windows. Thread: main.
class QtWindowFactory : public WindowFactory {
public:
    QtWindowFactory(WindowEnvironment environment, std::shared_ptr<AlertPresenter> alerts, std::shared_ptr<StatusMenu> statusMenu,
        std::shared_ptr<WebPluginLoader> webPlugin);
    ~QtWindowFactory() override;

    std::shared_ptr<SplashWindow> makeSplashWindow() override;
    std::shared_ptr<FeedsBrowserWindowController> makeFeedsBrowser(const FeedsBrowserEnvironment& environment) override;
    std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer() override;
    std::shared_ptr<PreferencesWindowController> makePreferencesWindow(const PreferencesEnvironment& environment) override;
    std::shared_ptr<NewFeedWindowController> makeNewFeedWindow(const NewFeedEnvironment& environment) override;
    void showArticleWindow(const FeedsBrowserEnvironment& environment, const std::shared_ptr<FeedItemArticle>& article) override;

private:
    const WindowEnvironment _environment;
    const std::shared_ptr<AlertPresenter> _alerts;
    const std::shared_ptr<StatusMenu> _statusMenu;
    const std::shared_ptr<WebPluginLoader> _webPlugin;
    std::vector<std::shared_ptr<ArticleWindow>> _articleWindows; ///< those that are open
};

} // namespace brindle::desktop
