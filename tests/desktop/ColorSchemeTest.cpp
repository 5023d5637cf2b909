#include "desktop/system/ColorScheme.hpp"

#include "desktop/toolkit/Palettes.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SettingsPortalFake.hpp"

#include <QApplication>
#include <QStyle>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class ColorSchemeTest : public testing::Test {
protected:
    ~ColorSchemeTest() override {
        QApplication::setStyle(_style);
        QApplication::setPalette(_palette);
    }

    static bool isDark() { return desktop::isDark(QApplication::palette()); }

    PrivateBus _bus;
    const QPalette _palette = QApplication::palette();
    const QString _style = QApplication::style()->name();
};

} // namespace

TEST_F(ColorSchemeTest, IsDarkWhileTheDesktopPrefersThat) {
    SettingsPortalFake portal(_bus.connect(), 1);
    const ColorScheme scheme(_bus.connect());
    EXPECT_TRUE(runEventLoop([] { return isDark(); }));
    // A bus may tell of changes only a little later than it was asked to.
    EXPECT_TRUE(runEventLoop([&] {
        portal.change(2);
        return !isDark();
    }));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), _palette.color(QPalette::Window));
}

TEST_F(ColorSchemeTest, FollowsAChange) {
    SettingsPortalFake portal(_bus.connect(), 0);
    const ColorScheme scheme(_bus.connect());
    EXPECT_FALSE(isDark());
    EXPECT_TRUE(runEventLoop([&] {
        portal.change(1);
        return isDark();
    }));
}

TEST_F(ColorSchemeTest, ChangesNothingWithoutSuchASetting) {
    const ColorScheme scheme((QDBusConnection(QStringLiteral("no such bus"))));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), _palette.color(QPalette::Window));
}

} // namespace brindle::desktop
