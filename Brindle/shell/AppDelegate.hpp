#pragma once

#include "Brindle/browser/FeedsBrowserHost.hpp"
#include "Brindle/events/FeedEventNotifier.hpp"
#include "Brindle/events/InterfaceRefresher.hpp"
#include "Brindle/events/UISyncDispatcher.hpp"
#include "Brindle/library/CollectionEntityManager.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"
#include "Brindle/menu/MenuExtraManager.hpp"
#include "Brindle/shell/AppDelegateEnvironment.hpp"
#include "Brindle/shell/ApplicationActions.hpp"
#include "Brindle/shell/OPMLActions.hpp"
#include "Brindle/shell/SystemIntegration.hpp"
#include "Brindle/shell/UpdateSuspension.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Menu.hpp"
#include "platform/ResponderChain.hpp"
#include "platform/SystemEvents.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// The application: owns all that lives as long as the program, starts and ends it in order, takes what the desktop hands in, and is the
/// last handler of the responder chain. Whoever is the program's `main` keeps it. Thread: main.
class AppDelegate : public ActionHandler,
                    public SystemEventsObserver,
                    public InterfaceRefresher,
                    public FeedsBrowserHost,
                    public std::enable_shared_from_this<AppDelegate> {
public:
    /// Also becomes the shared one.
    static std::shared_ptr<AppDelegate> make(AppDelegateEnvironment environment);
    /// The application's own; for the outermost code only. Fatal where there is none.
    static std::shared_ptr<AppDelegate> shared();
    /// The folder of all of the program's files. Fatal for a user without a folder for them.
    static std::filesystem::path applicationSupportDirectory();

    // Each is made at its first use.
    const std::shared_ptr<FeedsManager>& feedsManager();
    const std::shared_ptr<SavedArticlesManager>& savedArticlesManager();
    const std::shared_ptr<CollectionEntityManager>& collectionEntityManager();
    const std::shared_ptr<MenuExtraManager>& menuExtraManager();
    const std::shared_ptr<FeedEventNotifier>& feedEventNotifier() const { return _feedEventNotifier; }
    const std::shared_ptr<UISyncDispatcher>& uiSyncDispatcher() const { return _uiSyncDispatcher; }
    ApplicationActions& actions();
    OPMLActions& opmlActions();
    SystemIntegration& systemIntegration() const { return *_systemIntegration; }
    const std::shared_ptr<ResponderChain>& responderChain() const { return _responderChain; }
    /// Who is asked before the application: the controllers of the key window.
    void setKeyWindowHandlers(ResponderChain::Handlers handlers);

    /// Starts the program, up to the splash at the first launch.
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    /// Saves. Timers end with the process.
    void applicationWillTerminate();
    /// Whether the desktop is to open something when the running program is started again: never.
    static bool applicationShouldHandleReopen(bool) { return false; }
    /// The program was asked to open files.
    void openFiles(const std::vector<std::filesystem::path>& files) { opmlActions().openFiles(files); }
    /// What the program's icon in the dock offers.
    static std::shared_ptr<Menu> applicationDockMenu();

    /// `completion` is called when the person has dismissed the splash; never, where it can't be made.
    void showSplash(const std::function<void()>& completion);
    void updateDockBadge();
    void newFeed() { editFeedItem(nullptr); }
    void newGroup() { editFeedGroup(nullptr); }
    void showPreferences();

    bool respondsTo(std::string_view action) const override;
    void perform(const Action& action) override;
    bool validateMenuItem(const MenuItem& item) const override;

    void machineDidWake() override;
    void machineWillSleep() override;
    void machineResignedSession() override;
    void machineActivatedSession() override;
    void handleAppleEvent(const std::optional<std::string>& address) override;

    void refreshInterface() override;
    void refreshCollections() override;
    void updateMenu() override;
    /// With null for a new one.
    void editFeedItem(const std::shared_ptr<FeedItem>& feedItem) override;
    /// With null for a new one.
    void editFeedGroup(const std::shared_ptr<FeedGroup>& feedGroup) override;

private:
    explicit AppDelegate(AppDelegateEnvironment environment) : _environment(std::move(environment)) {}
    void connect();
    FeedsBrowserEnvironment browserEnvironment();
    NewFeedEnvironment newFeedEnvironment();
    PreferencesEnvironment preferencesEnvironment();
    void showNewFeed(NewFeedWindowController::Kind kind);
    UpdateSuspension& updateSuspension();
    void finishFirstLaunch();
    void addDefaultFeedIfNeeded();
    void startApplication();
    void registerSystemObservers();

    const AppDelegateEnvironment _environment;
    std::shared_ptr<ResponderChain> _responderChain = std::make_shared<ResponderChain>();
    std::shared_ptr<SystemIntegration> _systemIntegration;
    std::shared_ptr<FeedEventNotifier> _feedEventNotifier;
    std::shared_ptr<UISyncDispatcher> _uiSyncDispatcher;
    std::shared_ptr<FeedsManager> _feedsManager;
    std::shared_ptr<SavedArticlesManager> _savedArticlesManager;
    std::shared_ptr<CollectionEntityManager> _collectionEntityManager;
    std::shared_ptr<MenuExtraManager> _menuExtraManager;
    std::shared_ptr<UpdateSuspension> _updateSuspension;
    std::shared_ptr<ApplicationWindows> _windows;
    std::shared_ptr<ApplicationActions> _actions;
    std::shared_ptr<OPMLActions> _opmlActions;
};

} // namespace brindle
