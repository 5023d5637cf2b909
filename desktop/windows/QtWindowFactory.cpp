#include "desktop/windows/QtWindowFactory.hpp"

#include "desktop/windows/ArticleWindow.hpp"
#include "desktop/windows/Dialogs.hpp"
#include "desktop/windows/FeedsBrowserWindow.hpp"

#include <algorithm>
#include <utility>

namespace brindle::desktop {

QtWindowFactory::QtWindowFactory(WindowEnvironment environment, std::shared_ptr<AlertPresenter> alerts,
    std::shared_ptr<StatusMenu> statusMenu, std::shared_ptr<WebPluginLoader> webPlugin)
    : _environment(std::move(environment)), _alerts(std::move(alerts)), _statusMenu(std::move(statusMenu)),
      _webPlugin(std::move(webPlugin)) {}

QtWindowFactory::~QtWindowFactory() = default;

std::shared_ptr<SplashWindow> QtWindowFactory::makeSplashWindow() {
    return desktop::makeSplashWindow(_environment, _statusMenu);
}

std::shared_ptr<FeedsBrowserWindowController> QtWindowFactory::makeFeedsBrowser(const FeedsBrowserEnvironment& environment) {
    return makeFeedsBrowserWindow(_environment, _webPlugin, _statusMenu, environment).controller;
}

std::shared_ptr<MediaPlayerWindowController> QtWindowFactory::makeMediaPlayer() {
    return desktop::makeMediaPlayer(_environment, _alerts);
}

std::shared_ptr<PreferencesWindowController> QtWindowFactory::makePreferencesWindow(const PreferencesEnvironment& environment) {
    return desktop::makePreferencesWindow(_environment, environment);
}

std::shared_ptr<NewFeedWindowController> QtWindowFactory::makeNewFeedWindow(const NewFeedEnvironment& environment) {
    return desktop::makeNewFeedWindow(_environment, environment);
}

void QtWindowFactory::showArticleWindow(const FeedsBrowserEnvironment& environment, const std::shared_ptr<FeedItemArticle>& article) {
    const auto window = ArticleWindow::make(_environment, _webPlugin, environment, article);
    window->onClose = [this, closed = window.get()] {
        std::erase_if(_articleWindows, [closed](const auto& each) { return each.get() == closed; });
    };
    if (!_articleWindows.empty())
        window->window().cascadeFrom(_articleWindows.back()->window());
    _articleWindows.push_back(window);
    window->show();
}

} // namespace brindle::desktop
