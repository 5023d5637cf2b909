#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"

#include "Brindle/browser/ArticlePage.hpp"
#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

namespace {

constexpr double wholeProgress = 100.0;

} // namespace

std::shared_ptr<FeedsBrowserArticleViewController> FeedsBrowserArticleViewController::make(
    FeedsBrowserEnvironment environment, std::shared_ptr<WebContainerView> webContainerView, bool standsAlone) {
    return std::shared_ptr<FeedsBrowserArticleViewController>(
        new FeedsBrowserArticleViewController(std::move(environment), std::move(webContainerView), standsAlone));
}

FeedsBrowserArticleViewController::FeedsBrowserArticleViewController(
    FeedsBrowserEnvironment environment, std::shared_ptr<WebContainerView> webContainerView, bool standsAlone)
    : showOriginalMenuItem(std::make_shared<MenuItem>(localized("Show Original"), browseractions::toggleShowOriginal)),
      openInWebMenuItem(std::make_shared<MenuItem>(localized("Open in Web Browser"), browseractions::openInWebBrowser)),
      saveMenuItem(std::make_shared<MenuItem>(localized("Keep Article"), browseractions::handleSave)), _environment(std::move(environment)),
      _webContainerView(std::move(webContainerView)), _standsAlone(standsAlone) {
    std::int64_t tag = 0;
    for (const auto& item : {showOriginalMenuItem, openInWebMenuItem, saveMenuItem})
        actionsPopUpButton.addItem(item, tag++);
}

FeedsBrowserArticleViewController::~FeedsBrowserArticleViewController() {
    removeWebView();
}

void FeedsBrowserArticleViewController::viewDidLoad() {
    assertMainThread();
    createWebView();
    actionsPopUpButton.menu().autoenablesItems = false;
    saveMenuItem->setEnabled(true);
    navigationContainerView.setHidden(_standsAlone);
    updateControls();
    loadArticle(showsOriginal());
}

void FeedsBrowserArticleViewController::showArticle(const std::shared_ptr<FeedItemArticle>& shown) {
    assertMainThread();
    _article = shown;
    const bool hasArticle = shown != nullptr;
    saveButton.setEnabled(hasArticle);
    actionsPopUpButton.setEnabled(hasArticle);
    createWebView();
    updateControls();
    loadArticle(showsOriginal());
}

/// In place of the one before: so no way leads back to the pages of another article.
void FeedsBrowserArticleViewController::createWebView() {
    removeWebView();
    _webView = _webContainerView->addWebView();
    _webView->setDelegate(weak_from_this());
    _webView->setHidden(true);
}

void FeedsBrowserArticleViewController::removeWebView() {
    if (!_webView)
        return;
    _webView->setDelegate({});
    _webView->removeFromSuperview();
    _webView.reset();
}

bool FeedsBrowserArticleViewController::showsOriginal() const {
    return _environment.defaults->boolForKey(preference::showOriginalArticle);
}

void FeedsBrowserArticleViewController::loadArticle(bool showOriginal) {
    if (!_webView)
        return;
    const auto shown = article();
    if (!shown) {
        _webView->loadHTMLString({}, std::nullopt);
        _webView->setHidden(true);
        return;
    }
    _webView->setHidden(false);
    progressIndicator.setDoubleValue(0);
    if (const auto url = shown->entry->preferredLinkURL(); url && showOriginal)
        return _webView->load(WebRequest{*url});
    const auto& content = shown->entry->content();
    if (!content || content->content().empty())
        return;
    const std::string pageTemplate = articlePageTemplate(_environment.resources);
    // Kept as is: without a base URL, relative addresses in an article lead nowhere.
    _webView->loadHTMLString(articlePage(pageTemplate, shown->entry->title, content->content()), std::nullopt);
}

void FeedsBrowserArticleViewController::updateControls() {
    const auto shown = article();
    goBackButton.setEnabled(_webView && _webView->canGoBack());
    goForwardButton.setEnabled(_webView && _webView->canGoForward());
    titleLabel.setStringValue(shown ? shown->entry->title : std::string());
    showOriginalMenuItem->setState(showsOriginal());
    const std::string saveTitle =
        localized(shown && _environment.savedArticlesManager->isSaved(*shown) ? "Don't Keep Article" : "Keep Article");
    saveButton.setTitle(saveTitle);
    saveMenuItem->setTitle(saveTitle);
}

void FeedsBrowserArticleViewController::goBack() {
    if (_webView)
        _webView->goBack();
}

void FeedsBrowserArticleViewController::goForward() {
    if (_webView)
        _webView->goForward();
}

void FeedsBrowserArticleViewController::toggleShowOriginal(const std::shared_ptr<ActionSender>& sender) {
    const bool showOriginal = !showsOriginal();
    _environment.defaults->set(preference::showOriginalArticle, showOriginal);
    if (const auto item = std::dynamic_pointer_cast<MenuItem>(sender))
        item->setState(showOriginal);
    loadArticle(showOriginal);
}

void FeedsBrowserArticleViewController::openInWebBrowser() {
    const auto shown = article();
    if (const auto url = shown ? shown->entry->preferredLinkURL() : std::nullopt)
        _environment.workspace->openURL(*url);
}

void FeedsBrowserArticleViewController::handleSave() {
    const auto shown = article();
    if (!shown)
        return;
    SavedArticlesManager& manager = *_environment.savedArticlesManager;
    const bool wasSaved = manager.isSaved(*shown);
    if (wasSaved)
        manager.unsaveArticle(*shown);
    else
        manager.saveArticle(shown);
    _environment.refreshInterface();
    updateControls();
    notices::post(wasSaved ? SavedArticlesManager::didUnsaveArticleNotification : SavedArticlesManager::didSaveArticleNotification, shown);
}

bool FeedsBrowserArticleViewController::respondsTo(std::string_view action) const {
    for (const std::string_view own : {browseractions::goBack, browseractions::goForward, browseractions::toggleShowOriginal,
             browseractions::openInWebBrowser, browseractions::handleSave}) {
        if (action == own)
            return true;
    }
    return false;
}

void FeedsBrowserArticleViewController::perform(const Action& action) {
    if (action.name == browseractions::goBack)
        goBack();
    else if (action.name == browseractions::goForward)
        goForward();
    else if (action.name == browseractions::toggleShowOriginal)
        toggleShowOriginal(action.sender);
    else if (action.name == browseractions::openInWebBrowser)
        openInWebBrowser();
    else if (action.name == browseractions::handleSave)
        handleSave();
}

NavigationPolicy FeedsBrowserArticleViewController::decidePolicy(const NavigationAction& action) {
    if (action.type != NavigationAction::Type::linkActivated)
        return NavigationPolicy::allow;
    if (action.url)
        _environment.workspace->openURL(*action.url);
    return NavigationPolicy::cancel;
}

void FeedsBrowserArticleViewController::didStartProvisionalNavigation() {
    progressIndicator.setDoubleValue(0);
    progressIndicator.setHidden(false);
    updateControls();
}

void FeedsBrowserArticleViewController::didFinishNavigation() {
    showOrHideProgress();
    updateControls();
}

void FeedsBrowserArticleViewController::estimatedProgressDidChange() {
    progressIndicator.setDoubleValue(_webView->estimatedProgress() * wholeProgress);
    showOrHideProgress();
}

void FeedsBrowserArticleViewController::showOrHideProgress() {
    const double value = progressIndicator.doubleValue();
    progressIndicator.setHidden(!(value >= 0 && value < wholeProgress));
}

void FeedsBrowserArticleViewController::titleDidChange() {
    if (std::string pageTitle = _webView->title(); !pageTitle.empty())
        title.setStringValue(std::move(pageTitle));
}

} // namespace brindle
