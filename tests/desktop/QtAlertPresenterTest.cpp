#include "desktop/system/QtAlertPresenter.hpp"

#include "desktop/windows/QtWindow.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/OnDisplay.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class QtAlertPresenterTest : public testing::Test {
protected:
    /// The alert that is on the screen.
    static QMessageBox* shown() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            auto* const box = qobject_cast<QMessageBox*>(widget);
            if (box && box->isVisible())
                return box;
        }
        return nullptr;
    }
    static QAbstractButton* button(const QString& text) {
        for (QAbstractButton* const each : shown()->buttons()) {
            if (each->text() == text)
                return each;
        }
        return nullptr;
    }
    AlertPresenter::Answer answer() {
        return [this](int response) { _answers.push_back(response); };
    }

    QtAlertPresenter _alerts;
    std::vector<int> _answers;
};

} // namespace

TEST_F(QtAlertPresenterTest, ShowsItsTextsAsTheyAre) {
    _alerts.runModal({"Delete <b>?", "For & good", {"Yes", "No"}}, answer());
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->text(), QStringLiteral("Delete <b>?"));
    for (const QLabel* const label : shown()->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    EXPECT_FALSE(shown()->iconPixmap().isNull());
    EXPECT_EQ(shown()->informativeText(), QStringLiteral("For & good"));
    EXPECT_EQ(shown()->windowModality(), Qt::ApplicationModal);
    button(QStringLiteral("No"))->click();
}

TEST_F(QtAlertPresenterTest, AnswersByTheNumberOfTheButton) {
    for (const auto& [text, response] : {std::pair("One", 1000), std::pair("Two", 1001), std::pair("Three", 1002)}) {
        _alerts.runModal({"Which?", "", {"One", "Two", "Three"}}, answer());
        button(QLatin1String(text))->click();
        ASSERT_EQ(_answers.size(), 1U);
        EXPECT_EQ(_answers.back(), response);
        _answers.clear();
    }
}

TEST_F(QtAlertPresenterTest, TakesEnterForTheFirstButtonAndEscapeForTheLast) {
    _alerts.runModal({"Which?", "", {"One", "Two"}}, answer());
    QTest::keyClick(shown(), Qt::Key_Return);
    _alerts.runModal({"Which?", "", {"One", "Two"}}, answer());
    QTest::keyClick(shown(), Qt::Key_Escape);
    EXPECT_EQ(_answers, (std::vector{1000, 1001}));
}

TEST_F(QtAlertPresenterTest, TakesTheButtonOfTheTitleForTheLast) {
    _alerts.runModal({"Which?", "", {"One", "Two", "Three"}}, answer());
    shown()->close();
    EXPECT_EQ(_answers, std::vector{1002});
}

TEST_F(QtAlertPresenterTest, HasAButtonWhereNoneIsGiven) {
    _alerts.runModal({"Done", "", {}}, {});
    ASSERT_EQ(shown()->buttons().size(), 1);
    shown()->buttons().constFirst()->click();
    EXPECT_TRUE(runEventLoop([] { return shown() == nullptr; }));
}

TEST_F(QtAlertPresenterTest, HangsASheetOnTheKeyWindow) {
    QMainWindow window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(runEventLoop([&] { return QApplication::activeWindow() == &window; }));
    _alerts.beginSheet({"Delete?", "", {"Yes", "No"}}, answer());
    EXPECT_EQ(shown()->parentWidget(), &window);
    EXPECT_EQ(shown()->windowModality(), Qt::WindowModal);
    button(QStringLiteral("Yes"))->click();
    EXPECT_EQ(_answers, std::vector{1000});
}

TEST_F(QtAlertPresenterTest, ComesUpAboveAWindowThatStaysAboveTheOthers) {
    QMainWindow floating;
    floating.setWindowFlag(Qt::WindowStaysOnTopHint);
    floating.show();
    _alerts.runModal({"Failed", "", {"OK"}}, answer());
    EXPECT_TRUE(shown()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    button(QStringLiteral("OK"))->click();
    floating.hide();
    _alerts.runModal({"Failed", "", {"OK"}}, answer());
    EXPECT_FALSE(shown()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    button(QStringLiteral("OK"))->click();
}

TEST_F(QtAlertPresenterTest, LiesAboveAFloatingWindowThatLiesAboveTheOthers) {
    BRINDLE_RUN_ON_DISPLAY();
    const auto number = [](const QWidget& widget) { return QStringLiteral("0x%1").arg(widget.winId(), 0, 16); };
    const TemporaryFolder folder;
    const WindowEnvironment environment = {std::make_shared<UserDefaults>(folder / "Preferences.plist"), {}};
    QtWindow player(environment);
    player.setLevel(Window::Level::floating);
    player.show();
    QtWindow browser(environment);
    browser.show();
    const auto stack = [] { return windowStack(QProcessEnvironment::systemEnvironment()); };
    const QStringList windows = {number(browser.widget()), number(player.widget())};
    EXPECT_TRUE(runEventLoop([&] { return stack() == windows; }));
    _alerts.runModal({"Failed", "", {"OK"}}, answer());
    EXPECT_TRUE(runEventLoop([&] { return stack() == windows + QStringList{number(*shown())}; }));
    button(QStringLiteral("OK"))->click();
}

TEST_F(QtAlertPresenterTest, ShowsASheetByItselfWithoutAWindow) {
    _alerts.beginSheet({"Delete?", "", {"Yes", "No"}}, answer());
    EXPECT_EQ(shown()->parentWidget(), nullptr);
    button(QStringLiteral("No"))->click();
    EXPECT_EQ(_answers, std::vector{1001});
}

} // namespace brindle::desktop
