#include "tests/shell/AppDelegateFixture.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "foundation/Console.hpp"
#include "foundation/RunLoop.hpp"
#include "platform/ObjectSender.hpp"
#include "tests/fakes/ImageDecoderFake.hpp"
#include "tests/fakes/SpeechFake.hpp"
#include "tests/fakes/StatusItemFake.hpp"
#include "tests/fakes/UserNotificationCenterFake.hpp"

namespace brindle {

namespace {

/// Logs each call into the one log.
class LoggedApplication : public Application {
public:
    LoggedApplication(CallLog log, const bool& shiftKeyIsDown) : _log(std::move(log)), _shiftKeyIsDown(shiftKeyIsDown) {}

    void setActivationPolicy(ActivationPolicy policy) override {
        _log->push_back("setActivationPolicy " + std::to_string(static_cast<int>(policy)));
    }
    void activate() override { _log->emplace_back("activate"); }
    void terminate() override { _log->emplace_back("terminate"); }
    void orderFrontStandardAboutPanel() override { _log->emplace_back("orderFrontStandardAboutPanel"); }
    bool isShiftKeyDown() const override { return _shiftKeyIsDown; }

private:
    const CallLog _log;
    const bool& _shiftKeyIsDown;
};

class LoggedDockTile : public DockTile {
public:
    explicit LoggedDockTile(CallLog log) : _log(std::move(log)) {}
    void setBadgeLabel(const std::optional<std::string>& label) override { _log->push_back("badge " + label.value_or("none")); }

private:
    const CallLog _log;
};

} // namespace

AppDelegateTest::AppDelegateTest() {
    Console::redirect([log = log](std::string_view line) {
        if (!line.starts_with("Removing FeedItemArticle"))
            log->emplace_back(line.substr(0, line.find(", error: ")));
    });
    RunLoop::main().setTimeSource(time);
    for (const auto name : {notices::didAddFeed, notices::didUpdateFeed}) {
        _observers.push_back(NotificationCenter::defaultCenter().addObserver(name, nullptr, [this](const Notification& notification) {
            const auto subject = notices::subject(notification);
            const auto feed = std::dynamic_pointer_cast<Feed>(subject);
            const std::string about = !feed ? "article" : feed->kind == Feed::Kind::separator ? "separator" : feed->name();
            log->push_back((notification.name == notices::didAddFeed ? "didAddFeed " : "didUpdateFeed ") + about);
        }));
    }
    environment.supportDirectory = folder / "Brindle";
    environment.resources = folder.path();
    environment.defaultFeedAddress = "file:///news.xml";
    environment.bundleIdentifier = bundleIdentifier;
    environment.launcherApplicationBundleID = launcher;
    environment.sessions = {std::make_shared<ClockFake>(Date(std::chrono::hours(500'000))), absentNetworkRoute(), nullptr};
    environment.defaults = std::make_shared<UserDefaults>(folder / "Preferences.plist");
    environment.application = std::make_shared<LoggedApplication>(log, shiftKeyIsDown);
    environment.alerts = alerts;
    environment.panels = panels;
    environment.statusItem = std::make_shared<StatusItemFake>();
    environment.dockTile = std::make_shared<LoggedDockTile>(log);
    environment.windows = windows;
    environment.imageDecoder = std::make_shared<ImageDecoderFake>();
    environment.userNotificationCenter = std::make_shared<UserNotificationCenterFake>();
    environment.speechVoices = std::make_shared<SpeechVoicesFake>();
    environment.makeSynthesizer = [] { return std::make_shared<SpeechSynthesizerFake>(); };
    environment.workspace = workspace;
    environment.systemEvents = systemEvents;
    environment.launchServices = launchServices;
    environment.loginItem = loginItem;
    environment.runningApplications = running;
    environment.distributedNotificationCenter = std::make_shared<DistributedNotificationCenterFake>(log);
    windows->outline->name = [](const OutlineItem& item) {
        const auto feed = std::dynamic_pointer_cast<Feed>(item);
        return feed ? feed->name() : std::string("section");
    };
    registerDefaults(*environment.defaults);
    delegate = AppDelegate::make(environment);
}

AppDelegateTest::~AppDelegateTest() {
    RunLoop::main().runPending(); // rebuilds of the menu that wait
    _observers.clear();
    // What ends with the library prints lines.
    windows->browser.reset();
    windows->outline.reset();
    delegate.reset();
    environment = {};
    RunLoop::main().setTimeSource(nullptr);
    Console::redirect({});
}

void AppDelegateTest::remake() {
    delegate.reset();
    delegate = AppDelegate::make(environment);
    takeCalls();
}

std::shared_ptr<FeedItem> AppDelegateTest::makeItem(const std::string& name, const std::vector<std::string>& titles) {
    const auto item = FeedItem::make(
        name, URL::make("http://127.0.0.1/" + name).value(), FeedItem::defaultUpdateRate, {}, {}, feedsManager().environment());
    for (const std::string& title : titles) {
        const auto& entry =
            item->session().feed()->entries.emplace_back(std::make_shared<SyndicatedEntry>(environment.sessions.clock->now()));
        entry->title = title;
        if (!title.starts_with('-'))
            entry->links.emplace_back().url = URL::make("http://a.test/" + title);
    }
    item->syndicatedSessionDidFinishParsing(item->session());
    return item;
}

std::vector<std::string> AppDelegateTest::names() {
    std::vector<std::string> found;
    for (const auto& feed : feedsManager().feeds)
        found.push_back(feed->kind == Feed::Kind::separator ? "-" : feed->name());
    return found;
}

void AppDelegateTest::perform(std::string_view action, const std::shared_ptr<Object>& object) {
    delegate->perform({action, std::make_shared<ObjectSender>(object)});
}

void AppDelegateTest::storeLibrary(const std::string& name) {
    FeedsManager stored(environment.supportDirectory, environment.sessions, {});
    stored.createSupportDirectories();
    stored.addFeed(makeItem(name), 0);
    stored.save();
}

} // namespace brindle
