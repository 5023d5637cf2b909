#pragma once

#include "platform/WebView.hpp"
#include "tests/fakes/CallLog.hpp"

#include <sstream>
#include <string>

namespace brindle {

/// Logs each call that changes it, and answers as a test has it.
class WebViewFake : public WebView {
public:
    explicit WebViewFake(CallLog callLog) : log(std::move(callLog)) {}

    void setDelegate(std::weak_ptr<WebViewDelegate> newDelegate) override { delegate = std::move(newDelegate); }
    void setHidden(bool hidden) override {
        log->emplace_back(hidden ? "hide" : "show");
        isHidden = hidden;
    }
    void loadHTMLString(const std::string& html, const std::optional<URL>& baseURL) override {
        log->push_back("loadHTMLString \"" + html + "\"" + (baseURL ? " " + baseURL->absoluteString() : ""));
    }
    void load(const WebRequest& request) override {
        std::ostringstream call;
        call << "load " << request.url.absoluteString() << ' ' << static_cast<int>(request.cachePolicy) << ' ' << request.timeoutInterval;
        log->push_back(call.str());
    }
    bool canGoBack() const override { return hasBack; }
    bool canGoForward() const override { return hasForward; }
    void goBack() override { log->emplace_back("goBack"); }
    void goForward() override { log->emplace_back("goForward"); }
    double estimatedProgress() const override { return progress; }
    std::string title() const override { return pageTitle; }
    void removeFromSuperview() override { log->emplace_back("removeFromSuperview"); }

    CallLog log;
    std::weak_ptr<WebViewDelegate> delegate;
    bool isHidden = false;
    bool hasBack = false;
    bool hasForward = false;
    double progress = 0;
    std::string pageTitle;
};

/// Logs what becomes of the web views that are made in it, and keeps the last.
class WebContainerViewFake : public WebContainerView {
public:
    explicit WebContainerViewFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    std::shared_ptr<WebView> addWebView() override {
        log->emplace_back("addWebView");
        webView = std::make_shared<WebViewFake>(log);
        return webView;
    }

    CallLog log;
    std::shared_ptr<WebViewFake> webView;
};

} // namespace brindle
