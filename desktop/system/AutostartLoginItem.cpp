#include "desktop/system/AutostartLoginItem.hpp"

#include "desktop/system/KeyFile.hpp"
#include "foundation/FileManager.hpp"

namespace brindle::desktop {

std::string AutostartLoginItem::quoted(std::string_view word) {
    std::string result = "\"";
    for (const char each : word) {
        switch (each) {
        case '\\':
            result += R"(\\\\)";
            break;
        case '"':
        case '`':
        case '$':
            result += "\\\\";
            result += each;
            break;
        case '%':
            result += "%%";
            break;
        default:
            result += each;
        }
    }
    return result + '"';
}

bool AutostartLoginItem::setEnabled(const std::string& bundleIdentifier, bool isEnabled) {
    if (!_folders.configHome)
        return false;
    const std::filesystem::path folder = *_folders.configHome / "autostart";
    const std::filesystem::path file = folder / (bundleIdentifier + ".desktop");
    if (!isEnabled)
        return !FileManager::fileExists(file) || FileManager::removeItem(file);
    KeyFile entry;
    const auto set = [&](std::string_view key, std::string_view value) { entry.set("Desktop Entry", key, value); };
    set("Type", "Application");
    set("Name", "Brindle");
    std::string command;
    for (const std::string& word : _command)
        command += quoted(word) + ' ';
    set("Exec", command + "--background");
    set("Icon", "org.brindle.Brindle");
    set("X-GNOME-Autostart-enabled", "true");
    return FileManager::createDirectory(folder) && FileManager::writeAtomically(file, entry.text());
}

} // namespace brindle::desktop
