#pragma once

#include "Brindle/shell/PreferencesTabViewController.hpp"
#include "platform/Window.hpp"

#include <memory>

namespace brindle {

/// The window of the preferences. Made once. What was changed reaches the menu when it closes, at the latest. Thread: main.
class PreferencesWindowController : public WindowDelegate, public std::enable_shared_from_this<PreferencesWindowController> {
public:
    static std::shared_ptr<PreferencesWindowController> make(PreferencesEnvironment environment, std::shared_ptr<Window> window);

    PreferencesTabViewController& contentViewController() const { return *_contentViewController; }

    /// Before the window is first shown.
    void windowDidLoad();
    void showWindow();
    void close() { _window->close(); }
    void windowWillClose() override { _environment.refreshInterface(); }

private:
    PreferencesWindowController(PreferencesEnvironment environment, std::shared_ptr<Window> window);

    const PreferencesEnvironment _environment;
    const std::shared_ptr<Window> _window;
    const std::shared_ptr<PreferencesTabViewController> _contentViewController;
};

} // namespace brindle
