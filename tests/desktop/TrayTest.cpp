#include "tests/desktop/Panel.hpp"
#include "tests/desktop/ProgramFixture.hpp"

#include <optional>

namespace brindle::desktop {

namespace {

/// As it begins: what follows is not of ASCII, and not found by xdotool.
const QString browserTitle = QStringLiteral("Feeds Browser");

/// The program on a desktop that has the older tray, and no items on the bus.
class TrayTest : public ProgramFixture {
protected:
    void SetUp() override {
        BRINDLE_REQUIRE_PANEL();
        _panel.emplace(_bus.address());
        _platform = QStringLiteral("xcb");
        _display = _panel->display();
        setUpPreferences();
    }

    /// All that it shows: windows, menus and the icon.
    QStringList windows() const {
        const QString found = _panel->run(QStringLiteral("xdotool"),
            {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--class"), QStringLiteral("brindle")});
        return found.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    /// The icon's window, which the tray has taken into its own; empty where there is none.
    QString dockedIcon() const {
        const auto tell = [this](const char* tool, const QString& window, const char* what) {
            return _panel->run(QLatin1String(tool), {QStringLiteral("-id"), window, QLatin1String(what)});
        };
        for (const QString& window : windows()) {
            const QString parent =
                tell("xwininfo", window, "-tree").section(QLatin1String("Parent window id:"), 1).section(QLatin1Char('\n'), 0, 0);
            if (tell("xprop", window, "_XEMBED_INFO").contains(QLatin1String("0x1")) && !parent.contains(QLatin1String("the root window")))
                return window;
        }
        return {};
    }
    bool hasIcon() {
        return runEventLoop([this] { return !dockedIcon().isEmpty(); });
    }
    bool hasBrowser() {
        return runEventLoop([this] { return !_panel->windows(browserTitle).isEmpty(); });
    }
    std::optional<Panel> _panel;
};

} // namespace

TEST_F(TrayTest, HasTheIconAndOpensTheMenuOnAClick) {
    _panel->startTray();
    start({QStringLiteral("--background")});
    ASSERT_TRUE(hasIcon());
    const qsizetype before = windows().size();
    _panel->run(QStringLiteral("xdotool"), {QStringLiteral("mousemove"), QStringLiteral("--window"), dockedIcon(), QStringLiteral("8"),
                                               QStringLiteral("8"), QStringLiteral("click"), QStringLiteral("1")});
    EXPECT_TRUE(runEventLoop([&] { return windows().size() == before + 1; }));
}

TEST_F(TrayTest, ShowsTheBrowserOnceTheTrayIsGoneAndTheIconOnceItComesBack) {
    _panel->startTray();
    start({QStringLiteral("--background")});
    ASSERT_TRUE(hasIcon());
    EXPECT_TRUE(_panel->windows(browserTitle).isEmpty());
    _panel->endTray();
    ASSERT_TRUE(hasBrowser());
    _panel->startTray();
    EXPECT_TRUE(hasIcon());
}

TEST_F(TrayTest, ShowsTheBrowserAtTheStartWhereThatIsAsked) {
    _panel->startTray();
    start({QStringLiteral("--background"), QStringLiteral("--show-feeds-browser")});
    ASSERT_TRUE(hasIcon());
    EXPECT_TRUE(hasBrowser());
}

TEST_F(TrayTest, ShowsItsMinimisedBrowserWhenItIsStartedAgain) {
    _panel->startTray();
    start({});
    ASSERT_TRUE(hasBrowser());
    _panel->run(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), _panel->windows(browserTitle).constFirst()});
    ASSERT_TRUE(runEventLoop([this] { return _panel->windows(browserTitle).isEmpty(); }));
    EXPECT_EQ(finish(start({})), 0);
    EXPECT_TRUE(hasBrowser());
}

TEST_F(TrayTest, ShowsTheBrowserWhereThereIsNoTrayAndEndsWithIt) {
    QProcess& program = start({QStringLiteral("--background")});
    ASSERT_TRUE(hasBrowser());
    // The window manager's key.
    const QString browser = _panel->windows(browserTitle).constFirst();
    _panel->run(QStringLiteral("xdotool"),
        {QStringLiteral("windowactivate"), QStringLiteral("--sync"), browser, QStringLiteral("key"), QStringLiteral("alt+F4")});
    EXPECT_EQ(finish(program), 0);
}

} // namespace brindle::desktop
