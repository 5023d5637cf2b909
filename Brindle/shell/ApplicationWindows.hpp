#pragma once

#include "Brindle/shell/WindowFactory.hpp"

#include <memory>
#include <optional>
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
    std::shared_ptr<PreferencesWindowController> preferences(const PreferencesEnvironment& environment) {
        return made(_preferences, [&] { return _factory->makePreferencesWindow(environment); });
    }
    std::shared_ptr<NewFeedWindowController> newFeed(const NewFeedEnvironment& environment) {
        return made(_newFeed, [&] { return _factory->makeNewFeedWindow(environment); });
    }
    /// A new one each time.
    void showArticle(const FeedsBrowserEnvironment& environment, const std::shared_ptr<FeedItemArticle>& article) const {
        _factory->showArticleWindow(environment, article);
    }

    /// Whether the browser was made and is on the screen.
    bool isFeedsBrowserVisible() const { return _feedsBrowser && *_feedsBrowser && (*_feedsBrowser)->isWindowVisible(); }

private:
    /// Absent until it was asked for; null where it can't be made, which is not tried again.
    template <typename T>
    using Made = std::optional<std::shared_ptr<T>>;

    template <typename T, typename Make>
    static std::shared_ptr<T> made(Made<T>& window, Make make) {
        if (!window)
            window = make();
        return *window;
    }

    const std::shared_ptr<WindowFactory> _factory;
    Made<SplashWindow> _splash;
    Made<FeedsBrowserWindowController> _feedsBrowser;
    Made<MediaPlayerWindowController> _mediaPlayer;
    Made<PreferencesWindowController> _preferences;
    Made<NewFeedWindowController> _newFeed;
};

} // namespace brindle
