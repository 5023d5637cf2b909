#pragma once

#include "Brindle/browser/MediaPlayerViewController.hpp"
#include "foundation/URL.hpp"
#include "platform/Window.hpp"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace brindle {

/// The one window that plays enclosures. Thread: main.
class MediaPlayerWindowController : public WindowDelegate, public std::enable_shared_from_this<MediaPlayerWindowController> {
public:
    static std::shared_ptr<MediaPlayerWindowController> make(
        std::shared_ptr<Window> window, std::shared_ptr<MediaPlayerViewController> contentViewController) {
        return std::shared_ptr<MediaPlayerWindowController>(
            new MediaPlayerWindowController(std::move(window), std::move(contentViewController)));
    }

    /// Before the window is first shown; plays the address if there is one by then.
    void windowDidLoad();
    void windowWillClose() override;

    const std::optional<URL>& url() const { return _url; }
    /// Plays it, once the window has loaded.
    void setURL(URL url);

    void setTitle(const std::string& title) { _window->setTitle(title); }
    void showWindow() { _window->show(); }

private:
    MediaPlayerWindowController(std::shared_ptr<Window> window, std::shared_ptr<MediaPlayerViewController> contentViewController)
        : _window(std::move(window)), _contentViewController(std::move(contentViewController)) {}

    const std::shared_ptr<Window> _window;
    const std::shared_ptr<MediaPlayerViewController> _contentViewController;
    std::optional<URL> _url;
    bool _isLoaded = false;
};

} // namespace brindle
