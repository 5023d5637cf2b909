#include "Brindle/browser/MediaPlayerWindowController.hpp"

namespace brindle {

void MediaPlayerWindowController::windowDidLoad() {
    _isLoaded = true;
    _window->setLevel(Window::Level::floating);
    _window->setStyleMask(Window::titled | Window::closable | Window::utility);
    _window->setDelegate(weak_from_this());
    if (_url)
        _contentViewController->playURL(*_url);
}

void MediaPlayerWindowController::windowWillClose() {
    _contentViewController->stopPlayer();
}

void MediaPlayerWindowController::setURL(URL url) {
    _url = std::move(url);
    if (_isLoaded)
        _contentViewController->playURL(*_url);
}

} // namespace brindle
