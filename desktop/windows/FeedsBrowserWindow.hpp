#pragma once

#include "desktop/windows/BrowserWindow.hpp"

#include <memory>

namespace brindle::desktop {

/// The feeds browser put together: its controllers, and the window that shows them, which the controller keeps.
struct FeedsBrowserWindow {
    std::shared_ptr<FeedsBrowserWindowController> controller;
    std::shared_ptr<BrowserWindow> window;
};

/// Loaded and not yet shown. Thread: main.
FeedsBrowserWindow makeFeedsBrowserWindow(const WindowEnvironment& windows, const std::shared_ptr<WebPluginLoader>& webPlugin,
    const std::shared_ptr<StatusMenu>& statusMenu, const FeedsBrowserEnvironment& environment);

} // namespace brindle::desktop
