#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"

#include <QString>
#include <filesystem>
#include <optional>

namespace brindle::desktop {

/// Loads the plugin with the web view when it is first needed: it makes the program several times as large. Thread: main.
class WebPluginLoader {
public:
    /// `file` is the plugin, whether it is there or not.
    explicit WebPluginLoader(std::filesystem::path file) : _file(std::move(file)) {}

    /// Where the plugin of this program lies: in ../lib/brindle beside the folder of the program.
    static std::filesystem::path standardFile();

    /// Once, before other threads run: they may read the environment when the plugin changes it, so what it changes must have its place.
    static void prepareEnvironment();

    bool isLoaded() const { return _plugin != nullptr; }
    /// Null where it can't be loaded, which is tried once.
    WebPluginInterface* plugin();

private:
    const std::filesystem::path _file;
    bool _hasTried = false;
    WebPluginInterface* _plugin = nullptr; ///< stays loaded until the process ends
};

} // namespace brindle::desktop
