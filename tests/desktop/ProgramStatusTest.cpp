#include "tests/desktop/ProgramFixture.hpp"
#include "tests/desktop/SignalCatcher.hpp"
#include "tests/desktop/StatusNotifierWatcherFake.hpp"

#include "desktop/system/DBusTypes.hpp"

namespace brindle::desktop {

namespace {

/// What the desktop around the program is told.
class ProgramStatusTest : public ProgramFixture {
protected:
    /// Whether the program tells docks of a count, which it does before it has built its menu.
    bool tellsACount(QProcess& program) {
        EXPECT_TRUE(hasBuiltItsMenu(program));
        program.terminate();
        EXPECT_EQ(finish(program), 0);
        // The answer comes after the signals.
        PrivateBus::call(_desktop, QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
        return !_counts.messages.isEmpty();
    }

    const QDBusConnection _desktop = _bus.connect();
    const SignalCatcher _counts{_desktop, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update")};
};

} // namespace

TEST_F(ProgramStatusTest, TellsAFeedThatFailsInTheToolTip) {
    write("brindle/Preferences.plist", R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>isFrstLaunch</key><false/>
<key>addedDefaultFeed</key><true/></dict></plist>)");
    const StatusNotifierWatcherFake watcher(_desktop);
    start({QStringLiteral("--background"), QStringLiteral("https://c.invalid/feed")});
    ASSERT_TRUE(runEventLoop([&] { return !watcher.items.isEmpty(); }));
    EXPECT_TRUE(runEventLoop([&] {
        const QVariant toolTip = PrivateBus::property(_desktop, watcher.items.constFirst(), QStringLiteral("/StatusNotifierItem"),
            QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("ToolTip"));
        return qdbus_cast<DBusToolTip>(toolTip).text == QLatin1String("Feeds that can&#39;t be reached: 1") ||
               qdbus_cast<DBusToolTip>(toolTip).text == QLatin1String("Feeds that can't be reached: 1");
    }));
}

TEST_F(ProgramStatusTest, TellsDocksTheCount) {
    setUpPreferences();
    start({QStringLiteral("--background")});
    EXPECT_TRUE(runEventLoop([this] { return !_counts.messages.isEmpty(); }));
}

TEST_F(ProgramStatusTest, TellsDocksNoCountOfALibraryThatIsNotTheUsersOwn) {
    write("other/Preferences.plist",
        R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>isFrstLaunch</key><false/></dict></plist>)");
    const QString folder = QString::fromStdString((_home / "other").string());
    EXPECT_FALSE(tellsACount(start({QStringLiteral("--background"), QStringLiteral("--support-dir"), folder})));
}

TEST_F(ProgramStatusTest, TellsDocksNoCountWhereItIsHiddenThere) {
    write("brindle/Preferences.plist", R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>isFrstLaunch</key><false/>
<key>hideInDock</key><true/></dict></plist>)");
    EXPECT_FALSE(tellsACount(start({QStringLiteral("--background")})));
}

} // namespace brindle::desktop
