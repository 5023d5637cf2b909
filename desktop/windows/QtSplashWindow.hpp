#pragma once

#include "Brindle/shell/SplashWindow.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <memory>

namespace brindle::desktop {

/// Greets a person: what the program is, and where it will be found. Closing the window dismisses it as well: the program starts only then.
/// Thread: main.
class QtSplashWindow : public SplashWindow, public WindowDelegate, public std::enable_shared_from_this<QtSplashWindow> {
public:
    static std::shared_ptr<QtSplashWindow> make(WindowEnvironment environment);

    QtWindow& window() const { return *_window; }

    void show() override { _window->show(); }
    void close() override;
    void windowWillClose() override;

private:
    explicit QtSplashWindow(WindowEnvironment environment);
    QWidget* makeContent();

    const std::unique_ptr<QtWindow> _window;
    bool _isClosing = false; ///< by the program itself
};

} // namespace brindle::desktop
