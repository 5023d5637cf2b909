#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "platform/WebView.hpp"

#include <QPointer>
#include <QTextBrowser>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace brindle::desktop {

/// A web view in a place of a window. The engine is loaded with the first page; without the plugin, the text of a page is shown and nothing
/// is asked of the network. A page that may not be loaded is offered as a link. When the engine's process dies, a button offers to load the
/// page again. Thread: main.
class ArticleWebView : public WebView {
public:
    ArticleWebView(QWidget* place, std::shared_ptr<WebPluginLoader> loader);
    ~ArticleWebView() override;

    /// Null before the first page, and without the plugin.
    WebPageView* page() const { return _page.get(); }
    /// Null unless the plugin could not be loaded.
    QTextBrowser* textBrowser() const { return _text; }

    /// The host of the feed whose article is shown, empty for none: the original page may be there although it is of a private network.
    void setFeedHost(std::function<QString()> host) { _feedHost = std::move(host); }

    /// Scrolls by most of what is seen; `done` is told whether the page was at its end already.
    void scrollPage(bool down, std::function<void(bool wasAtEnd)> done);

    void setDelegate(std::weak_ptr<WebViewDelegate> delegate) override { _delegate = std::move(delegate); }
    void setHidden(bool isHidden) override;
    /// Kept as is: pages of articles have no base URL, and none is taken here.
    void loadHTMLString(const std::string& html, const std::optional<URL>& baseURL) override;
    void load(const WebRequest& request) override;
    bool canGoBack() const override { return _page && _page->canGoBack(); }
    bool canGoForward() const override { return _page && _page->canGoForward(); }
    void goBack() override;
    void goForward() override;
    double estimatedProgress() const override;
    std::string title() const override;
    void removeFromSuperview() override;

private:
    bool makePage();
    void add(QWidget* content);
    WebPageView::Events events();
    QTextBrowser& text();
    void showText(const QString& html);
    bool allows(NavigationAction::Type type, const QUrl& url) const;
    void showReload(bool isShown);

    const QPointer<QWidget> _holder; ///< what fills the place
    const std::shared_ptr<WebPluginLoader> _loader;
    std::function<QString()> _feedHost; ///< may be empty
    std::weak_ptr<WebViewDelegate> _delegate;
    std::unique_ptr<WebPageView> _page;
    QPointer<QTextBrowser> _text;
    QPointer<QWidget> _reload; ///< made when it is first needed
};

} // namespace brindle::desktop
