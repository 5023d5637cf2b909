#pragma once

#include "desktop/windows/WebPluginLoader.hpp"

#include <memory>

namespace brindle::desktop {

/// The engine of this process: it starts once, and is what it was told to be by then.
class WebEngine {
public:
    static bool isStarted() { return _loader != nullptr; }
    static const std::shared_ptr<WebPluginLoader>& start() {
        if (!_loader) {
            // "open.test" stands for a host of the open network: it is this machine.
            qputenv(webEngineSwitches, "--host-resolver-rules=\"MAP open.test 127.0.0.1\" --disable-gpu");
            qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1"); // tests may run as root
            _loader = std::make_shared<WebPluginLoader>(WebPluginLoader::standardFile());
            _loader->plugin();
        }
        return _loader;
    }

private:
    static inline std::shared_ptr<WebPluginLoader> _loader;
};

} // namespace brindle::desktop
