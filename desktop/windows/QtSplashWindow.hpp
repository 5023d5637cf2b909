#pragma once

#include "Brindle/shell/SplashWindow.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <memory>

class QLabel;

namespace brindle::desktop {

/// Greets a person: what the program is, and where it will be found. Closing the window dismisses it as well: the program starts only then.
/// Thread: main.
class QtSplashWindow : public SplashWindow, public WindowDelegate, public std::enable_shared_from_this<QtSplashWindow> {
public:
    /// `statusMenu` tells whether there is a place where the program's icon is seen.
    static std::shared_ptr<QtSplashWindow> make(WindowEnvironment environment, std::shared_ptr<StatusMenu> statusMenu);

    QtWindow& window() const { return *_window; }

    void show() override { _window->show(); }
    void close() override;
    void windowWillClose() override;

private:
    QtSplashWindow(WindowEnvironment environment, std::shared_ptr<StatusMenu> statusMenu);
    QWidget* makeContent();
    void showPlace();

    const std::unique_ptr<QtWindow> _window;
    const std::shared_ptr<StatusMenu> _statusMenu;
    QLabel* const _place; ///< where the program will be found
    const Control::Token _placeObserver;
    bool _isClosing = false; ///< by the program itself
};

} // namespace brindle::desktop
