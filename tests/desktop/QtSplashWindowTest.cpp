#include "desktop/windows/QtSplashWindow.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace brindle::desktop {

class QtSplashWindowTest : public testing::Test {
protected:
    QtSplashWindowTest() { show(); }

    void show() {
        splash->onDismiss = [this] { ++dismissed; };
        splash->show();
    }

    QMainWindow& shown() { return splash->window().widget(); }
    bool tells(const QString& words) {
        const auto labels = shown().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* each) { return each->text().contains(words); });
    }

    TemporaryFolder folder;
    int dismissed = 0;
    std::shared_ptr<StatusMenu> statusMenu = std::make_shared<StatusMenu>();
    std::shared_ptr<QtSplashWindow> splash =
        QtSplashWindow::make({std::make_shared<UserDefaults>(folder / "Preferences.plist"), {}}, statusMenu);
};

TEST_F(QtSplashWindowTest, IsDismissedByItsButton) {
    EXPECT_EQ(shown().windowTitle().toStdString(), "Welcome to Brindle");
    QTest::mouseClick(shown().findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(shown().isVisible());
    EXPECT_EQ(dismissed, 1);
}

TEST_F(QtSplashWindowTest, IsDismissedByEnterAndEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shown()));
        dismissed = 0;
        QTest::keyClick(&shown(), key);
        EXPECT_FALSE(shown().isVisible()) << key;
        EXPECT_EQ(dismissed, 1) << key;
    }
}

TEST_F(QtSplashWindowTest, IsDismissedWhenAPersonClosesIt) {
    shown().close();
    ASSERT_TRUE(runEventLoop([&] { return dismissed > 0; }));
    EXPECT_EQ(dismissed, 1);
}

TEST_F(QtSplashWindowTest, TellsWhereTheProgramWillBeFound) {
    EXPECT_TRUE(tells(QStringLiteral("Look for the Brindle icon")));
    statusMenu->setHidden(false);
    EXPECT_FALSE(tells(QStringLiteral("Look for the Brindle icon")));
    EXPECT_TRUE(tells(QStringLiteral("in the menu of the browser window")));
}

} // namespace brindle::desktop
