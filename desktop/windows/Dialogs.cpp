#include "desktop/windows/Dialogs.hpp"

#include "desktop/windows/ArticlePreviewView.hpp"
#include "desktop/windows/MediaPlayerWindow.hpp"
#include "desktop/windows/NewFeedWindow.hpp"
#include "desktop/windows/PreferencesWindow.hpp"
#include "desktop/windows/QtSplashWindow.hpp"

#include <utility>

namespace brindle::desktop {

std::shared_ptr<SplashWindow> makeSplashWindow(const WindowEnvironment& windows, std::shared_ptr<StatusMenu> statusMenu) {
    return QtSplashWindow::make(windows, std::move(statusMenu));
}

std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer(const WindowEnvironment& windows, std::shared_ptr<AlertPresenter> alerts) {
    const auto window = std::make_shared<MediaPlayerWindow>(windows);
    const auto content = MediaPlayerViewController::make(std::move(alerts));
    content->playerView = window->playerView();
    auto controller = MediaPlayerWindowController::make(window, content);
    controller->windowDidLoad();
    return controller;
}

std::shared_ptr<PreferencesWindowController> makePreferencesWindow(
    const WindowEnvironment& windows, const PreferencesEnvironment& environment) {
    const auto window = std::make_shared<PreferencesWindow>(windows);
    auto controller = PreferencesWindowController::make(environment, window);
    window->show(controller->contentViewController());
    controller->windowDidLoad();
    return controller;
}

std::shared_ptr<NewFeedWindowController> makeNewFeedWindow(const WindowEnvironment& windows, const NewFeedEnvironment& environment) {
    const auto window = std::make_shared<NewFeedWindow>(windows);
    auto controller = NewFeedWindowController::make(environment, window);
    NewFeedWindow::connect(window, *controller);
    controller->windowDidLoad();
    return controller;
}

std::shared_ptr<ArticlePreviewFactory> makeArticlePreviewFactory(std::shared_ptr<const UserDefaults> defaults) {
    return std::make_shared<QtArticlePreviewFactory>(std::move(defaults));
}

} // namespace brindle::desktop
