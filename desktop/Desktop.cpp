#include "desktop/Desktop.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "SyndicatedParser/SiteIconDiscovery.hpp"
#include "desktop/system/AutostartLoginItem.hpp"
#include "desktop/system/BusNotificationCenter.hpp"
#include "desktop/system/LauncherEntryDockTile.hpp"
#include "desktop/system/NoDockTile.hpp"
#include "desktop/system/NoRunningApplications.hpp"
#include "desktop/system/NotificationService.hpp"
#include "desktop/system/QtAlertPresenter.hpp"
#include "desktop/system/QtApplication.hpp"
#include "desktop/system/QtFilePanels.hpp"
#include "desktop/system/QtImageDecoder.hpp"
#include "desktop/system/QtWorkspace.hpp"
#include "desktop/system/SpeechService.hpp"
#include "desktop/system/XDGLaunchServices.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/Dialogs.hpp"
#include "desktop/windows/QtWindowFactory.hpp"
#include "foundation/FormattedText.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QApplication>
#include <QSessionManager>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

namespace fs = std::filesystem;

namespace {

/// Those of a support folder of its own lie in it.
std::shared_ptr<UserDefaults> openDefaults(const Options& options, const fs::path& supportDirectory) {
    const fs::path own = supportDirectory / "Preferences.plist";
    return std::make_shared<UserDefaults>(options.supportDirectory ? own : UserDefaults::standardFile("brindle").value_or(own));
}

/// For the next window that is activated: there the toolkit looks for the token. Under X11 it goes by the time of the last event.
void useActivationToken(const QString& token) {
    if (!token.isEmpty() && QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

PlatformDefaults platformDefaults() {
    PlatformDefaults defaults;
    defaults.systemFontSize = QApplication::font().pointSizeF();
    defaults.menuFontSize = QApplication::font("QMenu").pointSizeF();
    return defaults;
}

} // namespace

Desktop::Desktop(const Options& options, const fs::path& supportDirectory, const fs::path& resources, SingleInstance& instance)
    : _colorScheme(QDBusConnection::sessionBus()), _resources(resources), _newsFeed(resources),
      _defaults(openDefaults(options, supportDirectory)), _statusArea(std::make_shared<StatusArea>(QDBusConnection::sessionBus())),
      _systemEvents(std::make_shared<LogindSystemEvents>(QDBusConnection::systemBus())) {
    _delegate = AppDelegate::make(environment(options, supportDirectory));
    connectInstance(instance);
    connectEnds();
    connectStatusArea();
    watchFeeds();
    _isBrowserDue = options.showsFeedsBrowser;
    open(options);
}

Desktop::~Desktop() = default;

AppDelegateEnvironment Desktop::environment(const Options& options, const fs::path& supportDirectory) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const XDGFolders folders = XDGFolders::fromEnvironment();
    const auto speech = std::make_shared<SpeechService>();
    const auto alerts = std::make_shared<QtAlertPresenter>();
    const WindowEnvironment windows = {_defaults, [this](ResponderChain::Handlers handlers) {
                                           if (!_delegate)
                                               return;
                                           // Keys of a window also stand for commands of the status menu.
                                           if (!handlers.empty())
                                               handlers.push_back(_delegate->menuExtraManager());
                                           _delegate->setKeyWindowHandlers(std::move(handlers));
                                       }};
    AppDelegateEnvironment result;
    result.supportDirectory = supportDirectory;
    result.resources = _resources;
    result.defaultFeedAddress = _newsFeed.address();
    result.hasApplicationMenu = false;
    result.startsInBackground = options.background;
    const auto launchServices = std::make_shared<XDGLaunchServices>(folders);
    // What links open in is the program as it is installed, with the user's own library.
    if (!options.supportDirectory && launchServices->isInstalled(std::string(SingleInstance::standardName) + ".desktop"))
        result.bundleIdentifier = SingleInstance::standardName;
    result.launcherApplicationBundleID = options.instanceName() + ".Launcher";
    result.sessions = {std::make_shared<SystemClock>(), defaultNetworkRoute(), std::make_shared<SiteIconDiscovery>(), true};
    result.defaults = _defaults;
    result.platformDefaults = platformDefaults();
    result.application = std::make_shared<QtApplication>();
    result.alerts = alerts;
    result.panels = std::make_shared<QtFilePanels>();
    result.statusItem = _statusArea;
    // The launcher is that of the user's own library.
    if (options.supportDirectory || _defaults->boolForKey(preference::hideInDock))
        result.dockTile = std::make_shared<NoDockTile>();
    else
        result.dockTile = std::make_shared<LauncherEntryDockTile>(bus);
    result.previews = makeArticlePreviewFactory(_defaults);
    result.windows =
        std::make_shared<QtWindowFactory>(windows, alerts, _statusMenu, std::make_shared<WebPluginLoader>(WebPluginLoader::standardFile()));
    result.imageDecoder = std::make_shared<QtImageDecoder>();
    result.userNotificationCenter = std::make_shared<NotificationService>(bus);
    result.speechVoices = speech;
    result.makeSynthesizer = [speech] { return speech; };
    result.workspace = std::make_shared<QtWorkspace>();
    result.systemEvents = _systemEvents;
    result.launchServices = launchServices;
    result.loginItem = std::make_shared<AutostartLoginItem>(folders, options.command(fromQString(QCoreApplication::applicationFilePath())));
    result.runningApplications = std::make_shared<NoRunningApplications>();
    result.distributedNotificationCenter = std::make_shared<BusNotificationCenter>(bus);
    return result;
}

void Desktop::connectInstance(const SingleInstance& instance) {
    connect(&instance, &SingleInstance::activated, this, [this](const QString& token) { show(token); });
    connect(&instance, &SingleInstance::opened, this, [this](const QStringList& uris) {
        Options request;
        for (const QString& uri : uris)
            request.addURI(fromQString(uri));
        open(request);
    });
    connect(&instance, &SingleInstance::actionActivated, this, [this](const QString& name, const QString& token) {
        if (name != QLatin1String(SingleInstance::feedsBrowserAction))
            return;
        useActivationToken(token);
        perform(actions::showFeedsBrowser);
    });
}

void Desktop::connectEnds() {
    connect(&_terminationSignals, &TerminationSignals::received, this, [] { QCoreApplication::exit(0); });
    // The session may end the process without another word.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) {
            manager.setRestartHint(QSessionManager::RestartNever);
            save();
        },
        Qt::DirectConnection);
}

void Desktop::connectStatusArea() {
    _statusArea->setResponderChain(_delegate->responderChain());
    _statusArea->setDetails([this] { return failingFeeds(); });
    _unreachableTimer.setSingleShot(true);
    _unreachableTimer.setInterval(unreachableLimit);
    connect(&_unreachableTimer, &QTimer::timeout, this, [this] { showWhereUnreachable(); });
    connect(_statusArea.get(), &StatusArea::menuChanged, this, [this] { _statusMenu->setMenu(_statusArea->menu()); });
    connect(_statusArea.get(), &StatusArea::hasStatusAreaChanged, this, [this] { followStatusArea(); });
    connect(_systemEvents.get(), &LogindSystemEvents::urlEventHandlerSet, this, [this] {
        followStatusArea();
        openFiles();
        if (std::exchange(_isBrowserDue, false))
            perform(actions::showFeedsBrowser);
    });
    // Without a status area a program without a window would run where nobody finds it.
    connect(
        qApp, &QGuiApplication::lastWindowClosed, this,
        [this] {
            if (isLaunched() && !_statusArea->hasStatusArea() && !QtApplication::hasVisibleWindow())
                QCoreApplication::exit(0);
        },
        Qt::QueuedConnection);
}

/// The program's own news have no connection that could fail.
std::string Desktop::failingFeeds() const {
    const auto items = FeedsManager::items(_delegate->feedsManager()->feeds);
    const auto count = std::count_if(items.begin(), items.end(),
        [&](const std::shared_ptr<FeedItem>& item) { return item->lastConnectionFailed() && !_newsFeed.isNews(item->url()); });
    return count == 0 ? std::string() : formatted(localized("Feeds that can't be reached: %d"), {std::to_string(count)});
}

void Desktop::followStatusArea() {
    const bool isThere = _statusArea->hasStatusArea();
    _statusMenu->setHidden(isThere);
    if (isThere)
        _unreachableTimer.stop();
    else if (!_unreachableTimer.isActive())
        _unreachableTimer.start();
}

void Desktop::showWhereUnreachable() {
    if (isLaunched() && !_statusArea->hasStatusArea() && !QtApplication::hasVisibleWindow())
        perform(actions::showFeedsBrowser);
}

/// A feed is given its document as soon as it is there, before its first fetch fails.
void Desktop::watchFeeds() {
    _delegate->uiSyncDispatcher()->onFailure = [this] { _statusArea->detailsChanged(); };
    _newsFeedObserver = _defaults->observe(preference::addedDefaultFeed, [this] { _newsFeed.fill(*_delegate->feedsManager()); });
    connect(_systemEvents.get(), &LogindSystemEvents::urlEventHandlerSet, this, [this] { _newsFeed.fill(*_delegate->feedsManager()); });
}

void Desktop::show(const QString& token) {
    useActivationToken(token);
    if (QtApplication::hasVisibleWindow())
        QtApplication().reopen();
    else if (isLaunched())
        perform(actions::showFeedsBrowser);
}

void Desktop::perform(std::string_view action) {
    _delegate->perform({action});
}

void Desktop::open(const Options& request) {
    for (const std::string& address : request.addresses)
        _systemEvents->openAddress(address);
    _files.insert(_files.end(), request.files.begin(), request.files.end());
    if (isLaunched())
        openFiles();
}

void Desktop::openFiles() {
    if (const auto files = std::exchange(_files, {}); !files.empty())
        _delegate->openFiles(files);
}

/// Whether the library was loaded. Before, as while the first start asks its question, what is stored must stay as it is.
bool Desktop::isLaunched() const {
    return _systemEvents->hasURLEventHandler();
}

void Desktop::save() {
    if (!isLaunched())
        return;
    static_cast<void>(_delegate->feedsManager()->save());
    _delegate->savedArticlesManager()->save();
}

int Desktop::run() {
    _delegate->applicationWillFinishLaunching();
    _delegate->applicationDidFinishLaunching();
    const int status = QApplication::exec();
    if (isLaunched())
        _delegate->applicationWillTerminate();
    return status;
}

} // namespace brindle::desktop
