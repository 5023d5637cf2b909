#include "desktop/windows/QtWindow.hpp"

#include "Brindle/shell/Preferences.hpp"
#include "desktop/toolkit/Binders.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

namespace {

class ClosingFake : public WindowDelegate {
public:
    void windowWillClose() override { ++closes; }
    int closes = 0;
};

class QtWindowTest : public ::testing::Test {
protected:
    std::unique_ptr<QtWindow> make() {
        return std::make_unique<QtWindow>(
            WindowEnvironment{defaults, [this](ResponderChain::Handlers handlers) { keyHandlers.push_back(handlers.size()); }});
    }
    /// Shows it and waits until it has the keyboard.
    static void show(QtWindow& window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window.widget()));
    }
    std::string kept(std::string_view name) const { return defaults->stringForKey("NSWindow Frame " + std::string(name)).value_or(""); }

    TemporaryFolder folder;
    std::shared_ptr<UserDefaults> defaults = std::make_shared<UserDefaults>(folder / "Preferences.plist");
    std::vector<std::size_t> keyHandlers; ///< how many handlers the key window had, at each change
};

TEST_F(QtWindowTest, HasTheTitleAndTheFlagsOfItsStyle) {
    const auto window = make();
    window->setTitle("A & B");
    EXPECT_EQ(window->widget().windowTitle(), "A & B");
    window->setStyleMask(Window::titled | Window::closable);
    EXPECT_TRUE(window->widget().windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(window->widget().windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    window->setStyleMask(0);
    EXPECT_TRUE(window->widget().windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(QtWindowTest, AFloatingWindowStaysOnTop) {
    const auto window = make();
    window->setLevel(Window::Level::floating);
    EXPECT_TRUE(window->widget().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    window->setLevel(Window::Level::normal);
    EXPECT_FALSE(window->widget().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtWindowTest, AnotherStyleLeavesAWindowOnTheScreen) {
    const auto window = make();
    show(*window);
    window->setLevel(Window::Level::floating);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(QtWindowTest, ClosingHidesItAndTellsTheDelegateOnce) {
    const auto window = make();
    const auto delegate = std::make_shared<ClosingFake>();
    window->setDelegate(delegate);
    window->close();
    EXPECT_EQ(delegate->closes, 0);
    show(*window);
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(delegate->closes, 1);
    window->close();
    EXPECT_EQ(delegate->closes, 1);
}

TEST_F(QtWindowTest, APersonWhoClosesItIsToldAsWell) {
    const auto window = make();
    const auto delegate = std::make_shared<ClosingFake>();
    window->setDelegate(delegate);
    show(*window);
    window->widget().close();
    EXPECT_EQ(delegate->closes, 1);
}

TEST_F(QtWindowTest, AMinimisedWindowIsNotVisibleAndComesBack) {
    const auto window = make();
    show(*window);
    window->widget().showMinimized();
    EXPECT_FALSE(window->isVisible());
    window->show();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(QtWindowTest, ItsHandlersAreAskedWhileItHasTheKeyboard) {
    const auto handler = std::make_shared<ActionHandlerFake>();
    const auto window = make();
    window->setHandlers({handler});
    show(*window);
    EXPECT_EQ(keyHandlers.back(), 1U);
    window->close();
    EXPECT_TRUE(runEventLoop([&] { return keyHandlers.back() == 0; }));
}

TEST_F(QtWindowTest, TheWindowThatTakesOverIsAskedNext) {
    const auto handler = std::make_shared<ActionHandlerFake>();
    const auto first = make();
    first->setHandlers({handler});
    const auto second = make();
    second->setHandlers({handler, handler});
    show(*first);
    show(*second);
    EXPECT_EQ(keyHandlers.back(), 2U);
}

TEST_F(QtWindowTest, TheFrameIsKeptAndComesBack) {
    {
        const auto window = make();
        window->setFrameAutosaveName("Name");
        show(*window);
        window->widget().setGeometry(40, 50, 410, 320);
        window->close();
    }
    EXPECT_EQ(kept("Name"), "40 50 410 320");
    const auto window = make();
    window->setFrameUsingName("Name");
    EXPECT_EQ(window->widget().geometry(), QRect(40, 50, 410, 320));
}

TEST_F(QtWindowTest, AFrameInTheCornerOfTheScreenLeavesRoomForATitle) {
    const auto window = make();
    defaults->set("NSWindow Frame Name", std::string("0 0 400 300"));
    window->setFrameUsingName("Name");
    EXPECT_EQ(window->widget().geometry().left(), 0);
    EXPECT_GE(window->widget().geometry().top(), window->widget().screen()->availableGeometry().top() + 20);
    EXPECT_EQ(window->widget().size(), QSize(400, 300));
}

TEST_F(QtWindowTest, AFrameThatNoScreenShowsIsNotTaken) {
    const auto window = make();
    window->widget().resize(300, 200);
    for (const char* const frame : {"30000 30000 400 300", "0 0 0 0", "a b c d", "1 2 3", "", "0 0 99999 99999"}) {
        defaults->set("NSWindow Frame Name", frame);
        window->setFrameUsingName("Name");
        EXPECT_EQ(window->widget().size(), QSize(300, 200)) << frame;
    }
}

TEST_F(QtWindowTest, AFrameLargerThanTheDesktopIsMadeToFit) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const auto window = make();
    defaults->set("NSWindow Frame Name", "50 60 " + std::to_string(room.width() + 100) + " 300");
    window->setFrameUsingName("Name");
    EXPECT_EQ(window->widget().geometry(), QRect(room.left(), 60, room.width(), 300));
    defaults->set("NSWindow Frame Name", "0 0 300 " + std::to_string(room.height() + 100));
    window->setFrameUsingName("Name");
    EXPECT_EQ(window->widget().geometry().bottom(), room.bottom());
}

TEST_F(QtWindowTest, AWindowLargerThanTheScreenOpensAsLargeAsIt) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const auto window = make();
    window->widget().resize(room.width() / 2, room.height() + 100);
    show(*window);
    EXPECT_EQ(window->widget().size(), QSize(room.width() / 2, room.height()));
}

TEST_F(QtWindowTest, AWindowWithoutAFrameOpensOverTheOneInUse) {
    const auto first = make();
    first->widget().setGeometry(200, 100, 400, 300);
    first->setFrameUsingName("None");
    show(*first);
    first->widget().setGeometry(200, 100, 400, 300);
    const auto second = make();
    second->widget().resize(200, 100);
    show(*second);
    constexpr int border = 40; // what a desktop may draw around a window
    const QPoint offset = second->widget().geometry().center() - first->widget().geometry().center();
    EXPECT_LT(offset.manhattanLength(), border);
}

TEST_F(QtWindowTest, AWindowThatWasMovedComesBackThere) {
    const auto window = make();
    show(*window);
    window->widget().move(33, 44);
    window->close();
    show(*window);
    EXPECT_EQ(window->widget().pos(), QPoint(33, 44));
}

TEST_F(QtWindowTest, AWindowOfFixedSizeIsAsLargeAsItsContent) {
    const auto window = make();
    window->setStyleMask(Window::titled | Window::closable);
    window->widget().setCentralWidget(new QWidget);
    window->setContentSize({300, 200});
    show(*window);
    EXPECT_EQ(window->widget().centralWidget()->size(), QSize(300, 200));
    window->setContentSize({300, 260});
    EXPECT_TRUE(runEventLoop([&] { return window->widget().height() == 260; }));
}

TEST_F(QtWindowTest, GivesTheKeyboardToTheWidgetOfAControl) {
    const auto window = make();
    auto* const content = new QWidget;
    auto* const first = new QLineEdit(content);
    auto* const second = new QLineEdit(content);
    window->widget().setCentralWidget(content);
    TextField firstField;
    TextField secondField;
    bind(firstField, first);
    bind(secondField, second);
    show(*window);
    window->makeFirstResponder(secondField);
    EXPECT_TRUE(second->hasFocus());
}

} // namespace

} // namespace brindle::desktop
