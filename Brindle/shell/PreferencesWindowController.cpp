#include "Brindle/shell/PreferencesWindowController.hpp"

#include <utility>

namespace brindle {

std::shared_ptr<PreferencesWindowController> PreferencesWindowController::make(
    PreferencesEnvironment environment, std::shared_ptr<Window> window) {
    return std::shared_ptr<PreferencesWindowController>(new PreferencesWindowController(std::move(environment), std::move(window)));
}

PreferencesWindowController::PreferencesWindowController(PreferencesEnvironment environment, std::shared_ptr<Window> window)
    : _environment(std::move(environment)), _window(std::move(window)),
      _contentViewController(PreferencesTabViewController::make(_environment, _window)) {}

void PreferencesWindowController::windowDidLoad() {
    _window->setDelegate(weak_from_this());
    _contentViewController->viewDidLoad();
}

void PreferencesWindowController::showWindow() {
    _contentViewController->viewWillAppear();
    _window->show();
}

} // namespace brindle
