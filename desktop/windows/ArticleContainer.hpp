#pragma once

#include "desktop/windows/ArticleWebView.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "platform/WebView.hpp"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

namespace brindle::desktop {

/// The place of web views in a window. The widget belongs to its parent. Thread: main.
class ArticleContainer : public WebContainerView {
public:
    ArticleContainer(QWidget* parent, std::shared_ptr<WebPluginLoader> loader);

    QWidget* widget() const { return _place; }
    /// For the views to come: see `ArticleWebView::setFeedHost`.
    void setFeedHost(std::function<QString()> host) { _feedHost = std::move(host); }
    /// The one shown last; null when it is gone.
    std::shared_ptr<ArticleWebView> shown() const { return _shown.lock(); }

    std::shared_ptr<WebView> addWebView() override;

private:
    const QPointer<QWidget> _place;
    const std::shared_ptr<WebPluginLoader> _loader;
    std::function<QString()> _feedHost;
    std::weak_ptr<ArticleWebView> _shown;
};

} // namespace brindle::desktop
