#include "desktop/system/LauncherEntryDockTile.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"

#include <QDBusArgument>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class LauncherEntryDockTileTest : public testing::Test {
protected:
    LauncherEntryDockTileTest()
        : _tile(_bus.connect()), _dock(_bus.connect(), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update")) {}

    /// What a dock is told of a label.
    QVariantMap told(const std::optional<std::string>& label) {
        _dock.messages.clear();
        _tile.setBadgeLabel(label);
        if (!runEventLoop([this] { return !_dock.messages.isEmpty(); }))
            return {};
        EXPECT_EQ(_dock.messages.constFirst().arguments().at(0), QStringLiteral("application://org.brindle.Brindle.desktop"));
        return qdbus_cast<QVariantMap>(_dock.messages.constFirst().arguments().at(1));
    }

    PrivateBus _bus;
    LauncherEntryDockTile _tile;
    SignalCatcher _dock;
};

} // namespace

TEST_F(LauncherEntryDockTileTest, TellsTheCount) {
    const QVariantMap properties = told("12");
    EXPECT_EQ(properties.value(QStringLiteral("count")).toInt(), 12);
    EXPECT_TRUE(properties.value(QStringLiteral("count-visible")).toBool());
}

TEST_F(LauncherEntryDockTileTest, TakesTheCountAwayForNoLabelAndForAnEmptyOne) {
    told("12");
    EXPECT_FALSE(told(std::nullopt).value(QStringLiteral("count-visible"), true).toBool());
    told("12");
    EXPECT_FALSE(told("").value(QStringLiteral("count-visible"), true).toBool());
}

TEST_F(LauncherEntryDockTileTest, TellsTheSameCountOnce) {
    told("12");
    _tile.setBadgeLabel("12");
    _tile.setBadgeLabel("13");
    ASSERT_TRUE(runEventLoop([this] { return _dock.messages.size() > 1; }));
    EXPECT_EQ(qdbus_cast<QVariantMap>(_dock.messages.at(1).arguments().at(1)).value(QStringLiteral("count")).toInt(), 13);
}

} // namespace brindle::desktop
