#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "Brindle/browser/MediaPlayerWindowController.hpp"
#include "Brindle/shell/NewFeedWindowController.hpp"
#include "Brindle/shell/PreferencesWindowController.hpp"
#include "Brindle/shell/SplashWindow.hpp"

#include <memory>

namespace brindle {

/// Makes the program's windows. One that can't be made is null, and what needs it does nothing. Thread: main.
class WindowFactory {
public:
    virtual ~WindowFactory() = default;
    virtual std::shared_ptr<SplashWindow> makeSplashWindow() = 0;
    /// Its panes have a responder chain of their own (`FeedsBrowserSplitViewController::make`), and a feed can be revealed before the
    /// window is shown for the first time.
    virtual std::shared_ptr<FeedsBrowserWindowController> makeFeedsBrowser(const FeedsBrowserEnvironment& environment) = 0;
    virtual std::shared_ptr<MediaPlayerWindowController> makeMediaPlayer() = 0;
    virtual std::shared_ptr<PreferencesWindowController> makePreferencesWindow(const PreferencesEnvironment& environment) = 0;
    virtual std::shared_ptr<NewFeedWindowController> makeNewFeedWindow(const NewFeedEnvironment& environment) = 0;
    /// Shows a new window around a controller of its own for this one article, with the article's title as the window's, which is not
    /// drawn.
    virtual void showArticleWindow(const FeedsBrowserEnvironment& environment, const std::shared_ptr<FeedItemArticle>& article) = 0;
};

} // namespace brindle
