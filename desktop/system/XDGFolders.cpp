#include "desktop/system/XDGFolders.hpp"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace brindle::desktop {

namespace fs = std::filesystem;

namespace {

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : std::string();
}

std::vector<std::string> split(std::string_view list) {
    std::vector<std::string> parts;
    while (!list.empty()) {
        const std::size_t end = list.find(':');
        if (end != 0)
            parts.emplace_back(list.substr(0, end));
        list = end == std::string_view::npos ? std::string_view() : list.substr(end + 1);
    }
    return parts;
}

/// Relative ones are to be ignored.
std::optional<fs::path> home(const char* name, const char* below) {
    const fs::path given = variable(name);
    if (given.is_absolute())
        return given;
    const std::string user = variable("HOME");
    return user.empty() ? std::nullopt : std::optional(fs::path(user) / below);
}

std::vector<fs::path> directories(const char* name, std::string_view standard) {
    const std::string given = variable(name);
    std::vector<fs::path> result;
    for (const std::string& each : split(given.empty() ? standard : std::string_view(given))) {
        if (const fs::path folder = each; folder.is_absolute())
            result.push_back(folder);
    }
    return result;
}

std::vector<fs::path> withFirst(const std::optional<fs::path>& first, std::vector<fs::path> others) {
    if (first)
        others.insert(others.begin(), *first);
    return others;
}

} // namespace

XDGFolders XDGFolders::fromEnvironment() {
    std::string desktops = variable("XDG_CURRENT_DESKTOP");
    std::transform(desktops.begin(), desktops.end(), desktops.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter; });
    return {home("XDG_CONFIG_HOME", ".config"), home("XDG_DATA_HOME", ".local/share"), directories("XDG_CONFIG_DIRS", "/etc/xdg"),
        directories("XDG_DATA_DIRS", "/usr/local/share:/usr/share"), split(desktops)};
}

std::vector<fs::path> XDGFolders::allConfigDirectories() const {
    return withFirst(configHome, configDirectories);
}

std::vector<fs::path> XDGFolders::allDataDirectories() const {
    return withFirst(dataHome, dataDirectories);
}

} // namespace brindle::desktop
