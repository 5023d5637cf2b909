#pragma once

#include "foundation/URL.hpp"
#include "platform/View.hpp"

#include <memory>
#include <optional>
#include <string>

namespace brindle {

/// A page to load over the network.
struct WebRequest {
    /// As the platform numbers them.
    enum class CachePolicy { useProtocolCachePolicy = 0 };

    URL url;
    CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
    double timeoutInterval = 60.0; ///< seconds
};

/// What a page wants to go to, and why.
struct NavigationAction {
    /// As the platform numbers them.
    enum class Type { linkActivated = 0, formSubmitted, backForward, reload, formResubmitted, other = -1 };

    Type type = Type::other;
    std::optional<URL> url;
};

enum class NavigationPolicy { cancel = 0, allow };

/// Decides for a web view, and is told what becomes of it. Thread: main.
class WebViewDelegate {
public:
    virtual ~WebViewDelegate() = default;
    virtual NavigationPolicy decidePolicy(const NavigationAction& action) = 0;
    virtual void didStartProvisionalNavigation() = 0;
    virtual void didFinishNavigation() = 0;
    virtual void estimatedProgressDidChange() = 0;
    virtual void titleDidChange() = 0;
};

/// A view of a web page. Thread: main.
class WebView : public View {
public:
    virtual void setDelegate(std::weak_ptr<WebViewDelegate> delegate) = 0;
    virtual void setHidden(bool isHidden) = 0;
    /// Without a base URL, relative addresses in it lead nowhere.
    virtual void loadHTMLString(const std::string& html, const std::optional<URL>& baseURL) = 0;
    virtual void load(const WebRequest& request) = 0;

    virtual bool canGoBack() const = 0;
    virtual bool canGoForward() const = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;

    /// From 0 to 1.
    virtual double estimatedProgress() const = 0;
    /// Of the page; empty where it has none.
    virtual std::string title() const = 0;
};

/// A place in a window that holds web views, each as large as the place. Thread: main.
class WebContainerView {
public:
    virtual ~WebContainerView() = default;
    /// A new view with nothing in it and no history, pinned to all sides; the container shows it until it is taken out.
    virtual std::shared_ptr<WebView> addWebView() = 0;
};

} // namespace brindle
