#include "desktop/system/QtApplication.hpp"

#include "tests/desktop/OnDisplay.hpp"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

QList<QDialog*> aboutPanels() {
    QList<QDialog*> found;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("about"))
            found.append(qobject_cast<QDialog*>(widget));
    }
    return found;
}

/// What the window manager says of a window.
QString tell(const QWidget& window, const char* what) {
    return runTool(QStringLiteral("xprop"), {QStringLiteral("-id"), QString::number(window.winId()), QLatin1String(what)},
        QProcessEnvironment::systemEnvironment());
}

QString states(const QWidget& window) {
    return tell(window, "_NET_WM_STATE");
}

bool isManaged(const QWidget& window) {
    return tell(window, "WM_STATE").contains(QLatin1String("window state: Normal"));
}

bool isUnlisted(const QWidget& window) {
    const QString told = states(window);
    return told.contains(QLatin1String("_NET_WM_STATE_SKIP_TASKBAR")) && told.contains(QLatin1String("_NET_WM_STATE_SKIP_PAGER"));
}

} // namespace

TEST(QtApplicationTest, HasAVisibleWindowWhileOneIsShown) {
    QWidget window;
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
    window.show();
    EXPECT_TRUE(QtApplication::hasVisibleWindow());
    window.hide();
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
}

TEST(QtApplicationTest, TakesNoIconOfATrayForAWindow) {
    QWidget icon(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    icon.show();
    EXPECT_FALSE(QtApplication::hasVisibleWindow());
}

TEST(QtApplicationTest, TakesItsWindowsOutOfTheTaskBarWhereItIsStartedAgain) {
    QWidget window;
    window.showMinimized();
    QtApplication().reopen();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());
}

TEST(QtApplicationTest, LeavesAWindowInTheTaskBarWhereAnotherIsOnTheScreen) {
    QWidget minimized;
    minimized.showMinimized();
    QWidget shown;
    shown.show();
    QtApplication().reopen();
    EXPECT_TRUE(minimized.isMinimized());
}

TEST(QtApplicationTest, KeepsTheWindowsOfAnAccessoryOutOfTaskBarAndPager) {
    BRINDLE_RUN_ON_DISPLAY();
    QtApplication application;
    application.setActivationPolicy(Application::ActivationPolicy::accessory);
    QWidget window;
    for (int shows = 0; shows < 2; ++shows) {
        window.show();
        EXPECT_TRUE(runEventLoop([&] { return isManaged(window); }));
        EXPECT_TRUE(runEventLoop([&] { return isUnlisted(window); })) << states(window).toStdString();
        window.hide();
        EXPECT_TRUE(runEventLoop([&] { return !isManaged(window); }));
    }
    application.setActivationPolicy(Application::ActivationPolicy::regular);
    window.show();
    EXPECT_TRUE(runEventLoop([&] { return isManaged(window); }));
    EXPECT_FALSE(isUnlisted(window));
}

TEST(QtApplicationTest, ShowsOneAboutPanelWithTheVersion) {
    QtApplication application;
    application.orderFrontStandardAboutPanel();
    application.orderFrontStandardAboutPanel();
    const QList<QDialog*> panels = aboutPanels();
    ASSERT_EQ(panels.size(), 1);
    QDialog* const panel = panels.constFirst();
    const auto labels = panel->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(
        labels.begin(), labels.end(), [](const QLabel* each) { return each->text().contains(QLatin1String(BRINDLE_VERSION)); }));
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    application.orderFrontStandardAboutPanel();
    EXPECT_TRUE(panel->isVisible());
}

} // namespace brindle::desktop
