#include "desktop/DisplayServer.hpp"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <string_view>

namespace brindle::desktop::displayserver {

namespace {

std::string_view variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : std::string_view();
}

/// The functions of a client library that the toolkit loads as well, so that it is in nobody's way afterwards.
class ClientLibrary {
public:
    explicit ClientLibrary(const char* name) : _handle(::dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

    template <typename Function>
    Function* function(const char* name) const {
        return _handle ? reinterpret_cast<Function*>(::dlsym(_handle, name)) : nullptr;
    }

private:
    void* const _handle;
};

/// Also false where the server refuses this user.
bool answersX11() {
    const ClientLibrary library("libxcb.so.1");
    auto* const connect = library.function<void*(const char*, int*)>("xcb_connect");
    auto* const error = library.function<int(void*)>("xcb_connection_has_error");
    auto* const disconnect = library.function<void(void*)>("xcb_disconnect");
    if (!connect || !error || !disconnect)
        return false;
    void* const connection = connect(nullptr, nullptr);
    const bool answers = error(connection) == 0;
    disconnect(connection);
    return answers;
}

bool answersWayland() {
    // An open socket that was handed to this process can be used only once.
    if (!variable("WAYLAND_SOCKET").empty())
        return true;
    const ClientLibrary library("libwayland-client.so.0");
    auto* const connect = library.function<void*(const char*)>("wl_display_connect");
    auto* const disconnect = library.function<void(void*)>("wl_display_disconnect");
    void* const connection = connect && disconnect ? connect(nullptr) : nullptr;
    if (connection)
        disconnect(connection);
    return connection != nullptr;
}

/// `platforms` as the toolkit takes them: "wayland;xcb:options", of which it tries one after the other.
bool isAnyUsable(std::string_view platforms) {
    while (!platforms.empty()) {
        const std::size_t end = std::min(platforms.find(';'), platforms.size());
        const std::string_view name = platforms.substr(0, end);
        if (name.starts_with("xcb") ? answersX11() : !name.starts_with("wayland") || answersWayland())
            return true;
        platforms.remove_prefix(std::min(end + 1, platforms.size()));
    }
    return false;
}

} // namespace

std::optional<std::string> platform() {
    if (const std::string_view named = variable("QT_QPA_PLATFORM"); !named.empty())
        return isAnyUsable(named) ? std::optional(std::string()) : std::nullopt;
    if (!variable("WAYLAND_SOCKET").empty())
        return std::string();
    const bool hasX11 = !variable("DISPLAY").empty() && answersX11();
    const bool hasWayland = !variable("WAYLAND_DISPLAY").empty() && answersWayland();
    if (!hasX11 && !hasWayland)
        return std::nullopt;
    if (hasX11 && hasWayland)
        return std::string();
    return hasX11 ? "xcb" : "wayland";
}

std::string refusal() {
    if (const std::string_view named = variable("QT_QPA_PLATFORM"); !named.empty())
        return "no display can be reached by QT_QPA_PLATFORM=\"" + std::string(named) + "\".";
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        if (const std::string_view display = variable(name); !display.empty())
            return "the display \"" + std::string(display) + "\" can't be reached.";
    }
    return "there is no display.";
}

} // namespace brindle::desktop::displayserver
