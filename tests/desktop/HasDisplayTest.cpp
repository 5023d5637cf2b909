#include "tests/desktop/VirtualDisplay.hpp"
#include "tests/support/Folders.hpp"

#include <QProcessEnvironment>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

/// What scripts/has-display answers in that environment.
bool hasDisplay(const QString& platform, const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), QStringLiteral("/nonexistent"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    environment.insert(QStringLiteral("DISPLAY"), display);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QString::fromStdString(testsupport::sourceFolder() + "/scripts/has-display"), {});
    EXPECT_TRUE(process.waitForFinished());
    return process.exitCode() == 0;
}

} // namespace

TEST(HasDisplayTest, BelievesAPlatformThatNeedsNone) {
    EXPECT_TRUE(hasDisplay(QStringLiteral("offscreen"), {}));
    EXPECT_FALSE(hasDisplay({}, {}));
}

TEST(HasDisplayTest, AsksTheServerThatAPlatformNeeds) {
    const VirtualDisplay display;
    ASSERT_TRUE(display.isThere());
    for (const char* const platform : {"xcb", "wayland;xcb"}) {
        EXPECT_TRUE(hasDisplay(QLatin1String(platform), display.name())) << platform;
        EXPECT_FALSE(hasDisplay(QLatin1String(platform), {})) << platform;
    }
    EXPECT_FALSE(hasDisplay(QStringLiteral("wayland"), display.name()));
}

} // namespace brindle::desktop
