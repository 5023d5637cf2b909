#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Button.hpp"
#include "platform/MenuItem.hpp"
#include "platform/PopUpButton.hpp"
#include "platform/ProgressIndicator.hpp"
#include "platform/TextField.hpp"
#include "platform/WebView.hpp"

#include <memory>

namespace brindle {

/// Shows one article in a web view: its stored text in the page template, or its original page. A pane of the browser, or a window of its
/// own. Thread: main.
class FeedsBrowserArticleViewController : public WebViewDelegate,
                                          public ActionHandler,
                                          public std::enable_shared_from_this<FeedsBrowserArticleViewController> {
public:
    /// `standsAlone`: in a window of its own, which has no row for navigation.
    static std::shared_ptr<FeedsBrowserArticleViewController> make(
        FeedsBrowserEnvironment environment, std::shared_ptr<WebContainerView> webContainerView, bool standsAlone);
    ~FeedsBrowserArticleViewController() override;

    Button saveButton;
    Control navigationContainerView;
    Button goBackButton;
    Button goForwardButton;
    TextField titleLabel;
    ProgressIndicator progressIndicator;
    PopUpButton actionsPopUpButton; ///< holds the three items
    const std::shared_ptr<MenuItem> showOriginalMenuItem;
    const std::shared_ptr<MenuItem> openInWebMenuItem;
    const std::shared_ptr<MenuItem> saveMenuItem;
    TextField title; ///< of the page, for a window's title

    /// Before the view is first shown.
    void viewDidLoad();
    /// Null clears the pane. The article is not kept alive.
    void showArticle(const std::shared_ptr<FeedItemArticle>& article);
    std::shared_ptr<FeedItemArticle> article() const { return _article.lock(); }
    /// Null before the view has loaded.
    const std::shared_ptr<WebView>& webView() const { return _webView; }

    void goBack();
    void goForward();
    /// Flips whether original pages are shown, for this and all later articles. `sender` may be null.
    void toggleShowOriginal(const std::shared_ptr<ActionSender>& sender);
    void openInWebBrowser();
    void handleSave();

    bool respondsTo(std::string_view action) const override;
    void perform(const Action& action) override;

    NavigationPolicy decidePolicy(const NavigationAction& action) override;
    void didStartProvisionalNavigation() override;
    void didFinishNavigation() override;
    void estimatedProgressDidChange() override;
    void titleDidChange() override;

private:
    FeedsBrowserArticleViewController(
        FeedsBrowserEnvironment environment, std::shared_ptr<WebContainerView> webContainerView, bool standsAlone);

    void createWebView();
    void removeWebView();
    bool showsOriginal() const;
    void loadArticle(bool showOriginal);
    void updateControls();
    void showOrHideProgress();

    const FeedsBrowserEnvironment _environment;
    const std::shared_ptr<WebContainerView> _webContainerView;
    const bool _standsAlone;
    std::weak_ptr<FeedItemArticle> _article;
    std::shared_ptr<WebView> _webView;
};

} // namespace brindle
