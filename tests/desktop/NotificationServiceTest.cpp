#include "desktop/system/NotificationService.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"

#include <QDBusArgument>
#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString mock = QStringLiteral("org.freedesktop.DBus.Mock");

class DelegateFake : public UserNotificationCenterDelegate {
public:
    void userNotificationCenterDidActivateNotification(const UserNotification& notification) override {
        activated.push_back(notification.title);
    }

    std::vector<std::string> activated;
};

class NotificationServiceTest : public testing::Test {
protected:
    NotificationServiceTest() : _observer(_bus.connect()) {}
    ~NotificationServiceTest() override {
        if (_server)
            stop(*_server);
    }

    void startServer(const char* capabilities = "body body-markup actions") {
        _server = _bus.startMock(
            QStringLiteral("notification_daemon"), service, QStringLiteral("{\"capabilities\": \"%1\"}").arg(QLatin1String(capabilities)));
    }
    /// The arguments of each call of a method.
    QList<QVariantList> calls(const char* method) {
        const QDBusMessage answer =
            PrivateBus::call(_observer, service, path, mock, QStringLiteral("GetMethodCalls"), {QLatin1String(method)});
        QList<QVariantList> result;
        if (answer.arguments().isEmpty())
            return result;
        const auto list = answer.arguments().constFirst().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            qulonglong time = 0;
            QVariantList arguments;
            list.beginStructure();
            list >> time >> arguments;
            list.endStructure();
            result.append(arguments);
        }
        list.endArray();
        return result;
    }
    bool haveCome(int count) {
        return runEventLoop([&] { return calls("Notify").size() >= count; });
    }
    void emitSignal(const char* name, const char* signature, const QVariantList& arguments) {
        PrivateBus::call(_observer, service, path, mock, QStringLiteral("EmitSignal"),
            {service, QLatin1String(name), QLatin1String(signature), QVariant(arguments)});
    }

    PrivateBus _bus;
    QDBusConnection _observer;
    std::unique_ptr<QProcess> _server;
};

} // namespace

TEST_F(NotificationServiceTest, CutsTextsOfAnyLength) {
    startServer();
    NotificationService banners(_bus.connect());
    banners.deliver({std::string(1 << 20, 'x'), std::string(1 << 20, 'y')});
    ASSERT_TRUE(haveCome(1));
    const QVariantList arguments = calls("Notify").constFirst();
    EXPECT_LT(arguments[3].toString().size(), 2000);
    EXPECT_LT(arguments[4].toString().size(), 2000);
}

TEST_F(NotificationServiceTest, ShowsABannerWithItsMarkupEscaped) {
    startServer();
    NotificationService banners(_bus.connect());
    banners.deliver({"A <b> & c", "2 < 3 & more"});
    ASSERT_TRUE(haveCome(1));
    const QVariantList arguments = calls("Notify").constFirst();
    EXPECT_EQ(arguments.at(0), QStringLiteral("Brindle"));
    EXPECT_EQ(arguments.at(3), QStringLiteral("A <b> & c"));
    EXPECT_EQ(arguments.at(4), QStringLiteral("2 &lt; 3 &amp; more"));
}

TEST_F(NotificationServiceTest, EscapesNothingForAServerThatReadsNoMarkup) {
    startServer("body");
    NotificationService banners(_bus.connect());
    banners.deliver({"A", "2 < 3"});
    ASSERT_TRUE(haveCome(1));
    EXPECT_EQ(calls("Notify").constFirst().at(4), QStringLiteral("2 < 3"));
}

TEST_F(NotificationServiceTest, AsksForTheServersCapabilitiesOnce) {
    startServer();
    NotificationService banners(_bus.connect());
    for (const char* const title : {"1", "2", "3"})
        banners.deliver({title, "text"});
    ASSERT_TRUE(haveCome(3));
    EXPECT_EQ(calls("GetCapabilities").size(), 1);
}

TEST_F(NotificationServiceTest, ShowsBannersInTheirOrderAndDropsTheOldestOfABurst) {
    startServer();
    NotificationService banners(_bus.connect());
    constexpr int count = 300;
    for (int i = 0; i < count; ++i)
        banners.deliver({std::to_string(i), "text"});
    ASSERT_TRUE(haveCome(static_cast<int>(NotificationService::longestLine)));
    const QList<QVariantList> shown = calls("Notify");
    EXPECT_LE(shown.size(), static_cast<int>(NotificationService::longestLine) + 1);
    EXPECT_EQ(shown.constLast().at(3), QString::number(count - 1));
}

TEST_F(NotificationServiceTest, DropsBannersWithoutAServerAndShowsLaterOnes) {
    NotificationService banners(_bus.connect());
    banners.deliver({"lost", "text"});
    startServer();
    ASSERT_TRUE(runEventLoop([&] {
        banners.deliver({"found", "text"});
        return !calls("Notify").isEmpty();
    }));
    EXPECT_EQ(calls("Notify").constFirst().at(3), QStringLiteral("found"));
}

TEST_F(NotificationServiceTest, AsksTheNextServerAnew) {
    startServer();
    NotificationService banners(_bus.connect());
    banners.deliver({"1", "a < b"});
    ASSERT_TRUE(haveCome(1));
    stop(*_server);
    startServer("body");
    ASSERT_TRUE(runEventLoop([&] {
        banners.deliver({"2", "a < b"});
        return !calls("Notify").isEmpty();
    }));
    EXPECT_EQ(calls("Notify").constFirst().at(4), QStringLiteral("a < b"));
}

TEST_F(NotificationServiceTest, TellsOfAClickedBanner) {
    startServer();
    NotificationService banners(_bus.connect());
    const auto delegate = std::make_shared<DelegateFake>();
    banners.delegate = delegate;
    banners.deliver({"first", "text"});
    banners.deliver({"second", "text"});
    ASSERT_TRUE(haveCome(2));
    ASSERT_TRUE(runEventLoop([&] {
        emitSignal("ActionInvoked", "us", {2U, QStringLiteral("default")});
        return !delegate->activated.empty();
    }));
    EXPECT_EQ(delegate->activated.front(), "second");
}

TEST_F(NotificationServiceTest, DoesNothingWithoutABus) {
    NotificationService banners((QDBusConnection(QStringLiteral("no such bus"))));
    banners.deliver({"lost", "text"});
}

} // namespace brindle::desktop
