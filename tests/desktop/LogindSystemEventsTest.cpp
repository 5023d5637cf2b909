#include "desktop/system/LogindSystemEvents.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"

#include <QSignalSpy>
#include <gmock/gmock.h>
#include <unistd.h>

namespace brindle::desktop {

using testing::ElementsAre;
using Event = SystemEvents::Event;

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/c7");
const QString mock = QStringLiteral("org.freedesktop.DBus.Mock");

class ObserverFake : public SystemEventsObserver {
public:
    void machineDidWake() override { log.emplace_back("wake"); }
    void machineWillSleep() override { log.emplace_back("sleep"); }
    void machineResignedSession() override { log.emplace_back("resign"); }
    void machineActivatedSession() override { log.emplace_back("activate"); }
    void handleAppleEvent(const std::optional<std::string>& address) override { log.push_back(address.value_or("none")); }

    std::vector<std::string> log;
};

class LogindSystemEventsTest : public testing::Test {
protected:
    LogindSystemEventsTest() : _observer(_bus.connect()) {}
    ~LogindSystemEventsTest() override {
        if (_logind)
            stop(*_logind);
        qunsetenv("XDG_SESSION_ID");
    }

    /// With logind, and this process in its session c7.
    void makeEvents() {
        _logind = _bus.startMock(QStringLiteral("logind"), service);
        PrivateBus::call(_observer, service, managerPath, mock, QStringLiteral("AddSession"),
            {QStringLiteral("c7"), QStringLiteral("seat0"), 1000U, QStringLiteral("ada"), true});
        qputenv("XDG_SESSION_ID", "c7");
        watch();
    }
    void watch() {
        _events = std::make_unique<LogindSystemEvents>(_bus.connect());
        const QSignalSpy found(_events.get(), &LogindSystemEvents::sessionFound);
        ASSERT_TRUE(runEventLoop([&] { return !found.isEmpty(); }));
        for (const Event event : {Event::didWake, Event::willSleep, Event::sessionDidResignActive, Event::sessionDidBecomeActive})
            _events->addObserver(event, _told);
    }
    void sleep(bool begins) {
        PrivateBus::call(_observer, service, managerPath, mock, QStringLiteral("EmitSignal"),
            {QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), QStringLiteral("b"),
                QVariant(QVariantList{begins})});
    }
    void setActive(bool isActive) {
        PrivateBus::call(_observer, service, sessionPath, mock, QStringLiteral("UpdateProperties"),
            {QStringLiteral("org.freedesktop.login1.Session"), QVariantMap{{QStringLiteral("Active"), isActive}}});
    }
    bool isTold(std::size_t count) {
        return runEventLoop([&] { return _told->log.size() >= count; });
    }

    PrivateBus _bus;
    QDBusConnection _observer;
    std::unique_ptr<QProcess> _logind;
    std::unique_ptr<LogindSystemEvents> _events;
    std::shared_ptr<ObserverFake> _told = std::make_shared<ObserverFake>();
};

} // namespace

TEST_F(LogindSystemEventsTest, TellsOfSleepAndWake) {
    makeEvents();
    sleep(true);
    ASSERT_TRUE(isTold(1));
    sleep(false);
    ASSERT_TRUE(isTold(2));
    EXPECT_THAT(_told->log, ElementsAre("sleep", "wake"));
}

TEST_F(LogindSystemEventsTest, TellsWhenAnotherSessionTakesTheSeat) {
    makeEvents();
    setActive(false);
    ASSERT_TRUE(isTold(1));
    setActive(true);
    ASSERT_TRUE(isTold(2));
    EXPECT_THAT(_told->log, ElementsAre("resign", "activate"));
}

TEST_F(LogindSystemEventsTest, TellsOneReasonToBeAwayAtATime) {
    makeEvents();
    setActive(false);
    ASSERT_TRUE(isTold(1));
    sleep(true);
    sleep(false);
    setActive(true);
    ASSERT_TRUE(isTold(2));
    EXPECT_THAT(_told->log, ElementsAre("resign", "activate"));
}

TEST_F(LogindSystemEventsTest, TellsNobodyWhoWasRemoved) {
    makeEvents();
    _events->removeObserver(Event::willSleep);
    sleep(true);
    sleep(false);
    ASSERT_TRUE(isTold(1));
    EXPECT_THAT(_told->log, ElementsAre("wake"));
}

TEST_F(LogindSystemEventsTest, BelongsToTheSessionThatTheUserHasADisplayInWhereItIsInNone) {
    _logind = _bus.startMock(QStringLiteral("logind"), service);
    const auto callMock = [this](const char* method, const QVariantList& arguments) {
        PrivateBus::call(_observer, service, managerPath, mock, QLatin1String(method), arguments);
    };
    callMock("AddSession", {QStringLiteral("c7"), QStringLiteral("seat0"), static_cast<uint>(::getuid()), QStringLiteral("ada"), true});
    callMock("AddMethod", {QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("GetUser"), QStringLiteral("u"),
                              QStringLiteral("o"), QStringLiteral(R"(
from dbusmock import mockobject
path = "/org/freedesktop/login1/user/%u" % args[0]
mockobject.objects[path].props["org.freedesktop.login1.User"]["Display"] = ("c7", dbus.ObjectPath("/org/freedesktop/login1/session/c7"))
ret = dbus.ObjectPath(path)
)")});
    qunsetenv("XDG_SESSION_ID");
    watch();
    setActive(false);
    ASSERT_TRUE(isTold(1));
    EXPECT_THAT(_told->log, ElementsAre("resign"));
}

TEST_F(LogindSystemEventsTest, NeverSleepsWithoutLogind) {
    const QDBusConnection bus = _bus.connect();
    LogindSystemEvents events(bus);
    events.addObserver(Event::willSleep, _told);
    const QString manager = QStringLiteral("org.freedesktop.login1.Manager");
    const SignalCatcher anybody(bus, manager, QStringLiteral("PrepareForSleep"));
    QDBusMessage sleep = QDBusMessage::createSignal(managerPath, manager, QStringLiteral("PrepareForSleep"));
    sleep << true;
    _observer.send(sleep);
    ASSERT_TRUE(runEventLoop([&] { return !anybody.messages.isEmpty(); }));
    EXPECT_THAT(_told->log, ElementsAre());
}

TEST_F(LogindSystemEventsTest, KeepsAddressesUntilSomebodyTakesThem) {
    LogindSystemEvents events((QDBusConnection(QStringLiteral("no such bus"))));
    events.openAddress("feed:a");
    events.openAddress("feed:b");
    const QSignalSpy set(&events, &LogindSystemEvents::urlEventHandlerSet);
    events.setURLEventHandler(_told);
    EXPECT_THAT(_told->log, ElementsAre());
    ASSERT_TRUE(runEventLoop([&] { return !set.isEmpty(); }));
    events.openAddress("feed:c");
    EXPECT_THAT(_told->log, ElementsAre("feed:a", "feed:b", "feed:c"));
    events.removeURLEventHandler();
    EXPECT_FALSE(events.hasURLEventHandler());
}

} // namespace brindle::desktop
