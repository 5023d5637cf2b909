#include "desktop/system/SingleInstance.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

const QString name = QLatin1String(SingleInstance::standardName);
const QString path = QStringLiteral("/org/brindle/Brindle");
const QString interface = QStringLiteral("org.freedesktop.Application");

} // namespace

TEST(SingleInstanceTest, IsTheFirstWithoutABus) {
    SingleInstance instance(QDBusConnection(QStringLiteral("no such bus")), name);
    EXPECT_TRUE(instance.acquire());
    EXPECT_FALSE(instance.handOver({}));
}

TEST(SingleInstanceTest, LetsOneProcessHaveTheName) {
    PrivateBus bus;
    auto first = std::make_unique<SingleInstance>(bus.connect(), name);
    SingleInstance second(bus.connect(), name);
    EXPECT_TRUE(first->acquire());
    EXPECT_FALSE(second.acquire());
    first.reset();
    EXPECT_TRUE(second.acquire());
}

TEST(SingleInstanceTest, KeepsOtherNamesApart) {
    PrivateBus bus;
    SingleInstance first(bus.connect(), name);
    SingleInstance second(bus.connect(), name + QStringLiteral(".folder1"));
    EXPECT_TRUE(first.acquire());
    EXPECT_TRUE(second.acquire());
}

TEST(SingleInstanceTest, IsToldWhatToOpen) {
    PrivateBus bus;
    SingleInstance instance(bus.connect(), name);
    ASSERT_TRUE(instance.acquire());
    const QSignalSpy opened(&instance, &SingleInstance::opened);
    const QStringList uris = {QStringLiteral("feed:a"), QStringLiteral("file:///b.opml")};
    PrivateBus::call(bus.connect(), name, path, interface, QStringLiteral("Open"), {uris, QVariantMap()});
    ASSERT_TRUE(runEventLoop([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened[0][0].toStringList(), uris);
}

TEST(SingleInstanceTest, IsToldToShowItselfAndOfActions) {
    PrivateBus bus;
    SingleInstance instance(bus.connect(), name);
    ASSERT_TRUE(instance.acquire());
    const QSignalSpy activated(&instance, &SingleInstance::activated);
    const QSignalSpy actions(&instance, &SingleInstance::actionActivated);
    const QDBusConnection other = bus.connect();
    PrivateBus::call(other, name, path, interface, QStringLiteral("Activate"), {QVariantMap{{"activation-token", "t"}}});
    PrivateBus::call(other, name, path, interface, QStringLiteral("ActivateAction"),
        {QStringLiteral("show-feeds-browser"), QVariantList(), QVariantMap()});
    ASSERT_TRUE(runEventLoop([&] { return !activated.isEmpty() && !actions.isEmpty(); }));
    EXPECT_EQ(activated[0][0].toString(), QStringLiteral("t"));
    EXPECT_EQ(actions[0][0].toString(), QStringLiteral("show-feeds-browser"));
}

} // namespace brindle::desktop
