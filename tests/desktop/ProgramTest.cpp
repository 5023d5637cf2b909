#include "desktop/system/SingleInstance.hpp"
#include "foundation/FileLock.hpp"
#include "tests/desktop/ProgramFixture.hpp"
#include "tests/desktop/StatusNotifierWatcherFake.hpp"
#include "tests/desktop/VirtualDisplay.hpp"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using ProgramTest = ProgramFixture;

} // namespace

TEST_F(ProgramTest, TellsItsVersionAndItsUsageWithoutADisplay) {
    _platform.clear();
    QProcess& version = start({QStringLiteral("--version")});
    EXPECT_EQ(finish(version), 0);
    EXPECT_THAT(version.readAllStandardOutput().toStdString(), StartsWith("brindle 0."));
    QProcess& help = start({QStringLiteral("--help")});
    EXPECT_EQ(finish(help), 0);
    EXPECT_THAT(help.readAllStandardOutput().toStdString(), AllOf(StartsWith("usage: brindle"), HasSubstr("--background")));
}

TEST_F(ProgramTest, RefusesAnUnknownOption) {
    QProcess& program = start({QStringLiteral("--loud")});
    EXPECT_EQ(finish(program), 2);
    EXPECT_THAT(program.readAllStandardError().toStdString(), AllOf(HasSubstr("unknown option \"--loud\""), HasSubstr("usage: brindle")));
}

TEST_F(ProgramTest, SaysThatThereIsNoDisplay) {
    _platform.clear();
    QProcess& program = start({});
    EXPECT_EQ(finish(program), 1);
    EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr("there is no display"));
}

TEST_F(ProgramTest, SaysThatADisplayCantBeReached) {
    _platform.clear();
    // The highest number that there can be: nobody has it.
    _display = QStringLiteral(":65535");
    QProcess& program = start({});
    EXPECT_EQ(finish(program), 1);
    EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr("the display \":65535\" can't be reached"));
    _display.clear();
    _variables = {{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("/nonexistent/wayland-0")}};
    QProcess& other = start({});
    EXPECT_EQ(finish(other), 1);
    EXPECT_THAT(other.readAllStandardError().toStdString(), HasSubstr("the display \"/nonexistent/wayland-0\" can't be reached"));
}

TEST_F(ProgramTest, SaysThatThereIsNoDisplayForThePlatformThatTheEnvironmentNames) {
    _variables = {{QStringLiteral("XDG_RUNTIME_DIR"), QStringLiteral("/nonexistent")}};
    for (const char* const platform : {"xcb", "wayland", "wayland;xcb"}) {
        _platform = QLatin1String(platform);
        QProcess& program = start({});
        EXPECT_EQ(finish(program), 1);
        EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr(std::string("QT_QPA_PLATFORM=\"") + platform + '"'));
    }
}

TEST_F(ProgramTest, FindsTheDisplayThatAnswers) {
    const VirtualDisplay display;
    ASSERT_TRUE(display.isThere());
    _platform.clear();
    _display = display.name();
    _variables = {{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("/nonexistent/wayland-0")},
        {QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland")}};
    setUpPreferences();
    QProcess& program = start({QStringLiteral("--background")});
    EXPECT_TRUE(hasBuiltItsMenu(program));
}

TEST_F(ProgramTest, HandsOverTheRightToComeToTheFront) {
    SingleInstance running(_bus.connect(), QLatin1String(SingleInstance::standardName));
    ASSERT_TRUE(running.acquire());
    const QSignalSpy activated(&running, &SingleInstance::activated);
    _variables = {{QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("a token")}};
    EXPECT_EQ(finish(start({})), 0);
    _variables = {{QStringLiteral("DESKTOP_STARTUP_ID"), QStringLiteral("an id_TIME1")}};
    EXPECT_EQ(finish(start({})), 0);
    ASSERT_TRUE(runEventLoop([&] { return activated.size() == 2; }));
    EXPECT_EQ(activated[0][0], QStringLiteral("a token"));
    EXPECT_EQ(activated[1][0], QStringLiteral("an id_TIME1"));
}

TEST_F(ProgramTest, EndsWhereAnotherProgramUsesTheLibrary) {
    setUpPreferences();
    ASSERT_TRUE(FileManager::createDirectory(_home / "Brindle"));
    const auto lock = FileLock::tryLock(_home / "Brindle/.lock");
    ASSERT_TRUE(lock && *lock);
    QProcess& program = start({QStringLiteral("--background")});
    ASSERT_TRUE(runEventLoop([&] {
        program.setReadChannel(QProcess::StandardError);
        return program.peek(1 << 16).contains("The library is in use by another program.");
    }));
    EXPECT_EQ(console(program), "");
}

TEST_F(ProgramTest, HandsAddressesAndFilesToTheProgramThatRuns) {
    setUpPreferences();
    write("mine.opml",
        R"(<opml version="2.0"><body><outline text="G"><outline type="rss" text="A" xmlUrl="http://a.invalid/x"/></outline></body></opml>)");
    QProcess& first = start({QStringLiteral("--background")});
    ASSERT_TRUE(runs());
    QProcess& second = start({QStringLiteral("feed://b.invalid/feed"), QString::fromStdString((_home / "mine.opml").string())});
    EXPECT_EQ(finish(second), 0);
    // Each is fetched as soon as it is there, and fails.
    ASSERT_TRUE(
        runEventLoop([&] { return QString::fromStdString(console(first)).count(QStringLiteral("A connection error occured")) >= 2; }));
    first.terminate();
    EXPECT_EQ(finish(first), 0);
    const auto library = FileManager::contents(_home / "Brindle/Feeds.brindle");
    ASSERT_TRUE(library);
    EXPECT_THAT(*library, AllOf(HasSubstr("http://b.invalid/feed"), HasSubstr("http://a.invalid/x")));
}

TEST_F(ProgramTest, SavesWhenItIsAskedToEnd) {
    const auto library = librarySavedAtTheEnd();
    ASSERT_TRUE(library);
    EXPECT_THAT(*library, HasSubstr("https://c.invalid/feed"));
}

TEST_F(ProgramTest, RunsOnceForEachSupportFolder) {
    setUpPreferences();
    start({QStringLiteral("--background")});
    ASSERT_TRUE(runs());
    const QString folder = QString::fromStdString((_home / "other").string());
    write("other/Preferences.plist",
        R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>isFrstLaunch</key><false/></dict></plist>)");
    QProcess& other = start({QStringLiteral("--background"), QStringLiteral("--support-dir"), folder});
    ASSERT_TRUE(runEventLoop([&] { return console(other).find("Building Menu...") != std::string::npos; }));
    EXPECT_EQ(other.state(), QProcess::Running);
}

TEST_F(ProgramTest, EndsAtOnceWhereItRunsAndIsToStayInTheBackground) {
    setUpPreferences();
    QProcess& first = start({QStringLiteral("--background")});
    ASSERT_TRUE(runs());
    QProcess& second = start({QStringLiteral("--background")});
    EXPECT_EQ(finish(second), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
}

TEST_F(ProgramTest, LeavesAStoredLibraryAloneWhereItEndsBeforeItHasReadIt) {
    const auto library = librarySavedAtTheEnd();
    ASSERT_TRUE(library);

    write("brindle/Preferences.plist", R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict/></plist>)");
    QProcess& greeting = start({});
    ASSERT_TRUE(runs());
    // Answered once its event loop runs.
    const QDBusMessage answer = PrivateBus::call(_bus.connect(), QStringLiteral("org.brindle.Brindle"),
        QStringLiteral("/org/brindle/Brindle"), QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"), {QVariantMap()});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
    greeting.terminate();
    EXPECT_EQ(finish(greeting), 0);
    EXPECT_EQ(FileManager::contents(_home / "Brindle/Feeds.brindle").value_or(std::string()), *library);
}

TEST_F(ProgramTest, ShowsItsIconAndItsMenuOnADisplay) {
    const VirtualDisplay display;
    ASSERT_TRUE(display.isThere());
    _platform = QStringLiteral("xcb");
    _display = display.name();
    setUpPreferences();
    const QDBusConnection panel = _bus.connect();
    const StatusNotifierWatcherFake watcher(panel);
    QProcess& program = start({QStringLiteral("--background")});
    ASSERT_TRUE(runEventLoop([&] { return !watcher.items.isEmpty(); }));
    const QString item = watcher.items.front();
    const auto call = [&](const char* method) {
        return PrivateBus::call(panel, item, QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"),
            QLatin1String(method), {200, 20});
    };
    // Opens the menu, then closes it.
    EXPECT_EQ(call("Activate").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("Activate").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ContextMenu").type(), QDBusMessage::ReplyMessage);
    program.terminate();
    EXPECT_EQ(finish(program), 0);
}

TEST_F(ProgramTest, StartsWithoutAnyBus) {
    setUpPreferences();
    QProcessEnvironment environment;
    auto& process = *_processes.emplace_back(std::make_unique<QProcess>());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), _platform);
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(_home.path().string()));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QString::fromStdString(_home.path().string()));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
    process.setProcessEnvironment(environment);
    process.start(QString::fromStdString(testsupport::buildFolder() + "/bin/brindle"), {QStringLiteral("--background")});
    ASSERT_TRUE(runEventLoop([&] { return console(process).find("Building Menu...") != std::string::npos; }));
    process.terminate();
    EXPECT_EQ(finish(process), 0);
}

} // namespace brindle::desktop
