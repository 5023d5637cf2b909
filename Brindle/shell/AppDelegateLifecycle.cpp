#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/AppDelegate.hpp"
#include "foundation/RunLoop.hpp"

#include <array>
#include <iterator>

namespace brindle {

namespace {

using Event = SystemEvents::Event;

constexpr std::array<Event, 4> observedEvents = {
    Event::didWake, Event::willSleep, Event::sessionDidResignActive, Event::sessionDidBecomeActive};

} // namespace

void AppDelegate::applicationWillFinishLaunching() {
    assertMainThread();
    const UserDefaults& defaults = *_environment.defaults;
    registerDefaults(*_environment.defaults, _environment.platformDefaults);
    const bool isHidden = defaults.boolForKey(preference::hideInDock);
    _environment.application->setActivationPolicy(
        isHidden ? Application::ActivationPolicy::accessory : Application::ActivationPolicy::regular);
    if (!defaults.boolForKey(preference::isFrstLaunch))
        return startApplication();
    showSplash([delegate = weak_from_this()] {
        if (const auto self = delegate.lock())
            self->finishFirstLaunch();
    });
}

void AppDelegate::applicationDidFinishLaunching() {
    _systemIntegration->terminateLauncherIfRunning();
}

void AppDelegate::showSplash(const std::function<void()>& completion) {
    const auto splash = _windows->splash();
    if (!splash)
        return;
    splash->show();
    _environment.application->activate();
    splash->onDismiss = completion;
}

void AppDelegate::finishFirstLaunch() {
    _environment.defaults->set(preference::isFrstLaunch, false);
    // Kept as is: before the library is loaded, which appends to what is there.
    addDefaultFeedIfNeeded();
    _systemIntegration->askSetAsDefaultFeedReader([delegate = weak_from_this()] {
        if (const auto self = delegate.lock())
            self->startApplication();
    });
}

void AppDelegate::addDefaultFeedIfNeeded() {
    UserDefaults& defaults = *_environment.defaults;
    if (defaults.boolForKey(preference::addedDefaultFeed))
        return;
    FeedsManager& library = *feedsManager();
    const auto url = URL::make(_environment.defaultFeedAddress);
    if (!url || library.feedItem(*url))
        return;
    const auto feedItem = FeedItem::make({}, *url, FeedItem::defaultUpdateRate, {}, {}, library.environment());
    library.addFeed(feedItem, std::ssize(library.feeds));
    feedItem->scheduleUpdates(true);
    defaults.set(preference::addedDefaultFeed, true);
}

void AppDelegate::startApplication() {
    FeedsManager& library = *feedsManager();
    library.createSupportDirectories();
    library.load();
    library.allowUpdates = true;
    library.applyUpdateState(library.feeds);
    savedArticlesManager()->load();
    registerSystemObservers();
    updateMenu();
    if (_environment.startsInBackground || _environment.defaults->boolForKey(preference::hideFBOnStartup))
        return;
    _environment.application->activate();
    if (const auto browser = _windows->feedsBrowser(browserEnvironment())) {
        browser->selectedFeed.reset();
        browser->showWindow();
    }
}

void AppDelegate::registerSystemObservers() {
    for (const Event event : observedEvents)
        _environment.systemEvents->addObserver(event, weak_from_this());
    _environment.systemEvents->setURLEventHandler(weak_from_this());
}

void AppDelegate::applicationWillTerminate() {
    assertMainThread();
    for (const Event event : observedEvents)
        _environment.systemEvents->removeObserver(event);
    _environment.systemEvents->removeURLEventHandler();
    // Kept as is: also where the program ends at the question of the first launch, before anything is loaded; the news feed alone then
    // takes the place of a library that is stored.
    feedsManager()->save();
    savedArticlesManager()->save();
}

} // namespace brindle
