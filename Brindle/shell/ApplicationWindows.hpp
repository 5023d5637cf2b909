#pragma once

#include "Brindle/shell/WindowFactory.hpp"

#include <memory>
#include <utility>

namespace brindle {

/// The program's windows, each made when it is first needed and kept until the program ends. Null where one can't be made. Thread: main.
class ApplicationWindows {
public:
    explicit ApplicationWindows(std::shared_ptr<WindowFactory> factory) : _factory(std::move(factory)) {}

    std::shared_ptr<SplashWindow> splash() {
        return made(_splash, [this] { return _factory->makeSplashWindow(); });
    }
    std::shared_ptr<FeedsBrowserWindowController> feedsBrowser(const FeedsBrowserEnvironment& environment) {
        return made(_feedsBrowser, [&] { return _factory->makeFeedsBrowser(environment); });
    }
    std::shared_ptr<MediaPlayerWindowController> mediaPlayer() {
        return made(_mediaPlayer, [this] { return _factory->makeMediaPlayer(); });
    }
    std::shared_ptr<PreferencesWindow> preferences() {
        return made(_preferences, [this] { return _factory->makePreferencesWindow(); });
    }
    std::shared_ptr<NewFeedWindow> newFeed() {
        return made(_newFeed, [this] { return _factory->makeNewFeedWindow(); });
    }
    /// A new one each time.
    void showArticle(const FeedsBrowserEnvironment& environment, const std::shared_ptr<FeedItemArticle>& article) const {
        _factory->showArticleWindow(environment, article);
    }

    /// Whether the browser was made and is on the screen.
    bool isFeedsBrowserVisible() const { return _feedsBrowser && _feedsBrowser->isWindowVisible(); }

private:
    template <typename T, typename Make>
    static std::shared_ptr<T> made(std::shared_ptr<T>& window, Make make) {
        if (!window)
            window = make();
        return window;
    }

    const std::shared_ptr<WindowFactory> _factory;
    std::shared_ptr<SplashWindow> _splash;
    std::shared_ptr<FeedsBrowserWindowController> _feedsBrowser;
    std::shared_ptr<MediaPlayerWindowController> _mediaPlayer;
    std::shared_ptr<PreferencesWindow> _preferences;
    std::shared_ptr<NewFeedWindow> _newFeed;
};

} // namespace brindle
