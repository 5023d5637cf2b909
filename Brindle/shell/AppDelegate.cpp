#include "Brindle/shell/AppDelegate.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/menu/DockBadge.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "Brindle/shell/MenuValidation.hpp"
#include "Brindle/shell/OpenFeedURL.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace brindle {

namespace {

std::weak_ptr<AppDelegate>& sharedDelegate() {
    static std::weak_ptr<AppDelegate> delegate;
    return delegate;
}

/// An action that the application takes, and what it does.
struct HandledAction {
    std::string_view name;
    void (*perform)(AppDelegate& delegate, const Action& action);
};

constexpr std::array<HandledAction, 12> handledActions = {{
    {actions::newFeed, [](AppDelegate& delegate, const Action&) { delegate.newFeed(); }},
    {actions::newGroup, [](AppDelegate& delegate, const Action&) { delegate.newGroup(); }},
    {browseractions::newSeparator, [](AppDelegate& delegate, const Action&) { delegate.actions().newSeparator(); }},
    {browseractions::importOPML, [](AppDelegate& delegate, const Action&) { delegate.opmlActions().showImport(); }},
    {browseractions::exportOPML, [](AppDelegate& delegate, const Action&) { delegate.opmlActions().showExport(); }},
    {actions::markArticlesAsRead,
        [](AppDelegate& delegate, const Action& action) { delegate.actions().markArticles(action, ArticleStateFilter::read); }},
    {actions::markArticlesAsUnread,
        [](AppDelegate& delegate, const Action& action) { delegate.actions().markArticles(action, ArticleStateFilter::unread); }},
    {actions::openAllUnreadArticles, [](AppDelegate& delegate, const Action& action) { delegate.actions().openAllUnreadArticles(action); }},
    {actions::showArticle, [](AppDelegate& delegate, const Action& action) { delegate.actions().showArticle(action); }},
    {actions::openFeed, [](AppDelegate& delegate, const Action& action) { delegate.actions().openFeed(action); }},
    {actions::showFeedsBrowser, [](AppDelegate& delegate, const Action&) { delegate.actions().showFeedsBrowser(); }},
    {actions::showPreferences, [](AppDelegate& delegate, const Action&) { delegate.showPreferences(); }},
}};

const HandledAction* handledAction(std::string_view name) {
    const auto* const found =
        std::find_if(handledActions.begin(), handledActions.end(), [&](const HandledAction& handled) { return handled.name == name; });
    return found == handledActions.end() ? nullptr : found;
}

} // namespace

std::shared_ptr<AppDelegate> AppDelegate::make(AppDelegateEnvironment environment) {
    assertMainThread();
    const std::shared_ptr<AppDelegate> delegate(new AppDelegate(std::move(environment)));
    delegate->connect();
    sharedDelegate() = delegate;
    return delegate;
}

std::shared_ptr<AppDelegate> AppDelegate::shared() {
    auto delegate = sharedDelegate().lock();
    if (!delegate)
        fatalError("The application has no delegate.");
    return delegate;
}

std::filesystem::path AppDelegate::applicationSupportDirectory() {
    const auto folder = FileManager::applicationSupportDirectory();
    if (!folder)
        fatalError("Could not find Application Support folder for current user!");
    return *folder / "Brindle";
}

void AppDelegate::connect() {
    const AppDelegateEnvironment& from = _environment;
    setKeyWindowHandlers({});
    _windows = std::make_shared<ApplicationWindows>(from.windows);
    _feedEventNotifier = FeedEventNotifier::make(from.defaults, from.userNotificationCenter, from.speechVoices, from.makeSynthesizer);
    _uiSyncDispatcher = std::make_shared<UISyncDispatcher>(_feedEventNotifier, weak_from_this(), from.imageDecoder);
    _systemIntegration = SystemIntegration::make({from.defaults, from.application, from.alerts, from.launchServices, from.loginItem,
        from.runningApplications, from.distributedNotificationCenter, from.bundleIdentifier, from.launcherApplicationBundleID});
}

const std::shared_ptr<FeedsManager>& AppDelegate::feedsManager() {
    if (!_feedsManager)
        _feedsManager = std::make_shared<FeedsManager>(_environment.supportDirectory, _environment.sessions, _uiSyncDispatcher);
    return _feedsManager;
}

const std::shared_ptr<SavedArticlesManager>& AppDelegate::savedArticlesManager() {
    if (!_savedArticlesManager)
        _savedArticlesManager = std::make_shared<SavedArticlesManager>(_environment.supportDirectory, _environment.sessions);
    return _savedArticlesManager;
}

const std::shared_ptr<CollectionEntityManager>& AppDelegate::collectionEntityManager() {
    if (!_collectionEntityManager) {
        _collectionEntityManager = std::make_shared<CollectionEntityManager>(
            feedsManager(), savedArticlesManager(), _environment.defaults, _environment.sessions.clock);
    }
    return _collectionEntityManager;
}

const std::shared_ptr<MenuExtraManager>& AppDelegate::menuExtraManager() {
    if (!_menuExtraManager) {
        _menuExtraManager = MenuExtraManager::make(
            {feedsManager(), collectionEntityManager(), _environment.defaults, _environment.statusItem, _environment.dockTile,
                _environment.application, weak_from_this(), _environment.previews, statusIconName, _environment.hasApplicationMenu});
    }
    return _menuExtraManager;
}

ApplicationActions& AppDelegate::actions() {
    if (!_actions)
        _actions = ApplicationActions::make(browserEnvironment(), _environment.application, _windows);
    return *_actions;
}

OPMLActions& AppDelegate::opmlActions() {
    if (!_opmlActions)
        _opmlActions = OPMLActions::make(feedsManager(), _environment.alerts, _environment.panels);
    return *_opmlActions;
}

UpdateSuspension& AppDelegate::updateSuspension() {
    if (!_updateSuspension)
        _updateSuspension = UpdateSuspension::make(feedsManager(), _environment.defaults);
    return *_updateSuspension;
}

FeedsBrowserEnvironment AppDelegate::browserEnvironment() {
    return {feedsManager(), savedArticlesManager(), collectionEntityManager(), _environment.defaults, _responderChain, _environment.alerts,
        _environment.workspace, _environment.resources, weak_from_this()};
}

void AppDelegate::setKeyWindowHandlers(ResponderChain::Handlers handlers) {
    handlers.push_back(weak_from_this());
    _responderChain->setHandlers(std::move(handlers));
}

std::shared_ptr<Menu> AppDelegate::applicationDockMenu() {
    const auto menu = std::make_shared<Menu>();
    menu->addItem(std::make_shared<MenuItem>(localized("Show Feeds Browser"), actions::showFeedsBrowser));
    return menu;
}

bool AppDelegate::respondsTo(std::string_view action) const {
    return handledAction(action) != nullptr;
}

void AppDelegate::perform(const Action& action) {
    assertMainThread();
    if (const HandledAction* const handled = handledAction(action.name))
        handled->perform(*this, action);
}

bool AppDelegate::validateMenuItem(const MenuItem& item) const {
    const auto count = [this](const std::shared_ptr<Feed>& feed) {
        if (feed)
            return ArticleCounts({feed}).total();
        return _feedsManager ? ArticleCounts(_feedsManager->feeds).total() : ArticleCounts::Count();
    };
    return isMenuItemValid(item, count, _windows->isFeedsBrowserVisible());
}

void AppDelegate::machineDidWake() {
    updateSuspension().scheduleFeedUpdateResume();
}

void AppDelegate::machineWillSleep() {
    updateSuspension().suspendFeedUpdates();
}

void AppDelegate::machineResignedSession() {
    updateSuspension().suspendFeedUpdates();
}

void AppDelegate::machineActivatedSession() {
    updateSuspension().scheduleFeedUpdateResume();
}

void AppDelegate::handleAppleEvent(const std::optional<std::string>& address) {
    const auto feedItem = address ? openFeedURL(*address, *feedsManager()) : nullptr;
    if (!feedItem)
        return;
    refreshInterface();
    notices::post(notices::didAddFeed, feedItem);
}

void AppDelegate::refreshInterface() {
    _uiSyncDispatcher->refreshInterface();
}

void AppDelegate::refreshCollections() {
    collectionEntityManager()->refreshCollections();
}

void AppDelegate::updateMenu() {
    menuExtraManager()->updateMenu();
}

void AppDelegate::updateDockBadge() {
    brindle::updateDockBadge(*feedsManager(), *_environment.defaults, *_environment.dockTile);
}

NewFeedEnvironment AppDelegate::newFeedEnvironment() {
    return {feedsManager(), _environment.alerts, weak_from_this()};
}

PreferencesEnvironment AppDelegate::preferencesEnvironment() {
    const auto updateBadge = [delegate = weak_from_this()] {
        if (const auto self = delegate.lock())
            self->updateDockBadge();
    };
    return {_environment.defaults, feedsManager(), _systemIntegration, _environment.speechVoices, updateBadge, weak_from_this()};
}

void AppDelegate::editFeedItem(const std::shared_ptr<FeedItem>& feedItem) {
    showNewFeed(NewFeedWindowController::Item{feedItem});
}

void AppDelegate::editFeedGroup(const std::shared_ptr<FeedGroup>& feedGroup) {
    showNewFeed(NewFeedWindowController::Group{feedGroup});
}

void AppDelegate::showNewFeed(NewFeedWindowController::Kind kind) {
    const auto window = _windows->newFeed(newFeedEnvironment());
    if (!window)
        return;
    window->kind = std::move(kind);
    window->showWindow();
}

void AppDelegate::showPreferences() {
    actions().activateIfHiddenInDock();
    const auto window = _windows->preferences(preferencesEnvironment());
    if (!window)
        return;
    window->contentViewController().selectedTabKind.reset();
    window->showWindow();
}

} // namespace brindle
