#pragma once

#include "desktop/windows/WindowFrame.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/ResponderChain.hpp"
#include "platform/Window.hpp"

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

namespace brindle::desktop {

/// What a window needs of the application.
struct WindowEnvironment {
    std::shared_ptr<UserDefaults> defaults;
    /// Who is asked for actions first: the controllers of the key window; none while no window has the keyboard. May be empty.
    std::function<void(ResponderChain::Handlers)> setKeyWindowHandlers;
};

/// A window of the desktop. Closing hides it. Thread: main.
class QtWindow : public QObject, public Window {
    Q_OBJECT

public:
    explicit QtWindow(WindowEnvironment environment);
    ~QtWindow() override;

    QMainWindow& widget() const { return *_widget; }
    /// What the window's controllers take of actions while it has the keyboard.
    void setHandlers(ResponderChain::Handlers handlers);
    /// Before it is shown: takes a place a little below and to the right of another window, so that both can be seen. Does nothing where
    /// either fills the screen.
    void cascadeFrom(const QtWindow& other);

    void setDelegate(std::weak_ptr<WindowDelegate> delegate) override { _delegate = std::move(delegate); }
    void setTitle(const std::string& title) override;
    void setLevel(Level level) override;
    void setStyleMask(unsigned mask) override;
    void setFrameAutosaveName(std::string_view name) override;
    void setFrameUsingName(std::string_view name) override;
    void setContentSize(Size size) override;
    void makeFirstResponder(const Control& control) override;
    void show() override;
    void close() override;
    bool isVisible() const override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void applyFlags();
    void place();
    void keyWindowDidChange();
    void saveFrame();

    const WindowEnvironment _environment;
    const std::unique_ptr<QMainWindow> _widget;
    ResponderChain::Handlers _handlers;
    std::weak_ptr<WindowDelegate> _delegate;
    std::optional<WindowFrame> _frame; ///< absent: it is not kept
    QTimer _frameTimer;                ///< gathers the many steps of one drag
    Level _level = Level::normal;
    unsigned _styleMask = titled | closable | miniaturizable | resizable;
    bool _isPlaced = false; ///< on the screen, now or before
    bool _isKey = false;
};

} // namespace brindle::desktop
