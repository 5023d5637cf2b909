#include "desktop/system/QtApplication.hpp"

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
