#include "tests/screenshots/SampleApplication.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "desktop/system/QtAlertPresenter.hpp"
#include "desktop/system/QtApplication.hpp"
#include "desktop/system/QtFilePanels.hpp"
#include "desktop/system/QtImageDecoder.hpp"
#include "desktop/windows/Dialogs.hpp"
#include "desktop/windows/QtWindowFactory.hpp"
#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/DistributedNotificationCenterFake.hpp"
#include "tests/fakes/DockTileFake.hpp"
#include "tests/fakes/LaunchServicesFake.hpp"
#include "tests/fakes/LoginItemFake.hpp"
#include "tests/fakes/RunningApplicationsFake.hpp"
#include "tests/fakes/SpeechFake.hpp"
#include "tests/fakes/SystemEventsFake.hpp"
#include "tests/fakes/UserNotificationCenterFake.hpp"
#include "tests/fakes/WorkspaceFake.hpp"

#include <fstream>

namespace brindle::desktop {

namespace {

/// The day of the newest sample.
Date today() {
    constexpr std::int64_t seconds = 1'794'742'200; // 2026-11-15 11:30 UTC
    return Date(std::chrono::seconds(seconds));
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

SampleApplication::SampleApplication(const std::filesystem::path& resources) : _resources(resources) {
    const auto alerts = std::make_shared<QtAlertPresenter>();
    const auto speech = std::make_shared<SpeechVoicesFake>();
    _environment.supportDirectory = _folder / "Brindle";
    _environment.resources = resources;
    _environment.bundleIdentifier = "org.brindle.Screenshots";
    _environment.hasApplicationMenu = false;
    _environment.startsInBackground = true;
    _environment.sessions = {std::make_shared<ClockFake>(today()), absentNetworkRoute(), nullptr};
    _environment.defaults = std::make_shared<UserDefaults>(_folder / "Preferences.plist");
    _environment.application = std::make_shared<QtApplication>();
    _environment.alerts = alerts;
    _environment.panels = std::make_shared<QtFilePanels>();
    _environment.statusItem = _statusItem;
    _environment.dockTile = std::make_shared<DockTileFake>();
    _environment.previews = makeArticlePreviewFactory(_environment.defaults);
    _environment.windows = std::make_shared<QtWindowFactory>(WindowEnvironment{_environment.defaults, {}}, alerts, _statusMenu,
        std::make_shared<WebPluginLoader>(WebPluginLoader::standardFile()));
    _environment.imageDecoder = std::make_shared<QtImageDecoder>();
    _environment.userNotificationCenter = std::make_shared<UserNotificationCenterFake>();
    _environment.speechVoices = speech;
    _environment.makeSynthesizer = [] { return std::make_shared<SpeechSynthesizerFake>(); };
    _environment.workspace = std::make_shared<WorkspaceFake>();
    _environment.systemEvents = std::make_shared<SystemEventsFake>();
    _environment.launchServices = std::make_shared<LaunchServicesFake>();
    _environment.loginItem = std::make_shared<LoginItemFake>();
    _environment.runningApplications = std::make_shared<RunningApplicationsFake>();
    _environment.distributedNotificationCenter = std::make_shared<DistributedNotificationCenterFake>();
    registerDefaults(*_environment.defaults);
    _environment.defaults->set(preference::isFrstLaunch, false);
    _delegate = AppDelegate::make(_environment);
}

SampleApplication::~SampleApplication() = default;

void SampleApplication::start() {
    _delegate->applicationWillFinishLaunching();
    FeedsManager& library = *_delegate->feedsManager();
    const auto group = FeedGroup::make("Outdoors");
    library.addFeed(group, 0);
    std::ptrdiff_t place = 0;
    for (const char* const file : {"allotment.rss", "walks.json", "evening-sky.rdf"})
        library.addFeed(readSample(file), place++, group);
    library.addFeed(FeedSeparator::make(), 1);
    place = 2;
    for (const char* const file : {"reading-room.atom", "kitchen.atom", "radio.rss"})
        library.addFeed(readSample(file), place++);
    _delegate->refreshInterface();
    runEventLoop([this] { return statusMenu() && statusMenu()->items().size() > 12; });
}

std::shared_ptr<FeedItem> SampleApplication::makeFeed(const std::string& name, const std::string& address) {
    return FeedItem::make(name, URL::make(address).value(), FeedItem::defaultUpdateRate, {}, {}, _delegate->feedsManager()->environment());
}

std::shared_ptr<FeedItem> SampleApplication::readSample(const std::string& file) {
    auto feed = makeFeed({}, "https://example.org/" + file);
    feed->session().start(bytesOf(_resources / "samples" / file));
    runEventLoop([&] { return !feed->articles().empty(); });
    // A person has read the older ones.
    constexpr std::size_t newest = 2;
    for (std::size_t i = newest; i < feed->articles().size(); ++i)
        feed->markArticle(*feed->articles()[i], ArticleStateFilter::read);
    return feed;
}

} // namespace brindle::desktop
