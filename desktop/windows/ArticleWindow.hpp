#pragma once

#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"
#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "desktop/windows/QtWindow.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "platform/Window.hpp"

#include <functional>
#include <memory>

namespace brindle::desktop {

/// A window around one article, which lives as long as the window. Its title is the article's, then the page's. Thread: main.
class ArticleWindow : public WindowDelegate, public std::enable_shared_from_this<ArticleWindow> {
public:
    static std::shared_ptr<ArticleWindow> make(const WindowEnvironment& windows, const std::shared_ptr<WebPluginLoader>& webPlugin,
        const FeedsBrowserEnvironment& environment, std::shared_ptr<FeedItemArticle> article);

    std::function<void()> onClose; ///< called once it was closed; may end the window

    void show();
    QtWindow& window() { return _window; }

    void windowWillClose() override;

private:
    ArticleWindow(const WindowEnvironment& windows, std::shared_ptr<FeedItemArticle> article);
    void load(const std::shared_ptr<WebPluginLoader>& webPlugin, const FeedsBrowserEnvironment& environment);

    const std::shared_ptr<FeedItemArticle> _article;
    std::shared_ptr<FeedsBrowserArticleViewController> _controller;
    QtWindow _window;
    Control::Token _titleToken;
};

} // namespace brindle::desktop
