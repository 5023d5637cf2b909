#include "desktop/system/XDGLaunchServices.hpp"

#include "desktop/system/KeyFile.hpp"
#include "foundation/FileManager.hpp"

#include <algorithm>
#include <system_error>

namespace brindle::desktop {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view defaultGroup = "Default Applications";
constexpr std::string_view addedGroup = "Added Associations";
constexpr std::string_view removedGroup = "Removed Associations";
constexpr std::string_view cacheGroup = "MIME Cache";
constexpr std::string_view listName = "mimeapps.list";
constexpr std::string_view entryExtension = ".desktop";

std::string typeOf(std::string_view scheme) {
    return "x-scheme-handler/" + std::string(scheme);
}

/// Empty where the file can't be read.
KeyFile readKeyFile(const fs::path& file) {
    return KeyFile(FileManager::contents(file).value_or(std::string()));
}

/// Lists are often links into a folder that is kept elsewhere; the link stays.
void write(const fs::path& file, const KeyFile& list) {
    std::error_code error;
    const fs::path target = fs::weakly_canonical(file, error);
    const fs::path place = error ? file : target;
    static_cast<void>(FileManager::createDirectory(place.parent_path()));
    static_cast<void>(FileManager::writeAtomically(place, list.text()));
}

} // namespace

std::vector<fs::path> XDGLaunchServices::lists() const {
    std::vector<fs::path> result;
    const auto append = [&](const fs::path& folder) {
        for (const std::string& desktop : _folders.desktops)
            result.push_back(folder / (desktop + "-" + std::string(listName)));
        result.push_back(folder / listName);
    };
    for (const fs::path& folder : _folders.allConfigDirectories())
        append(folder);
    for (const fs::path& folder : _folders.allDataDirectories())
        append(folder / "applications");
    return result;
}

bool XDGLaunchServices::isInstalled(const std::string& desktopEntry) const {
    if (!desktopEntry.ends_with(entryExtension) || desktopEntry.find('/') != std::string::npos)
        return false;
    // A hyphen of the name may stand for a folder.
    const std::size_t hyphen = desktopEntry.find('-');
    for (const fs::path& folder : _folders.allDataDirectories()) {
        const fs::path entries = folder / "applications";
        if (FileManager::fileExists(entries / desktopEntry))
            return true;
        if (hyphen != std::string::npos &&
            FileManager::fileExists(entries / desktopEntry.substr(0, hyphen) / desktopEntry.substr(hyphen + 1)))
            return true;
    }
    return false;
}

std::optional<std::string> XDGLaunchServices::installedEntry(const std::vector<std::string>& desktopEntries) const {
    const auto found = std::find_if(desktopEntries.begin(), desktopEntries.end(), [this](const auto& each) { return isInstalled(each); });
    return found == desktopEntries.end() ? std::nullopt : std::optional(*found);
}

/// Where no list names a default: the first of those that can.
std::optional<std::string> XDGLaunchServices::associatedEntry(std::string_view type) const {
    std::vector<std::string> removed;
    const auto first = [&](const std::vector<std::string>& entries) {
        std::vector<std::string> left = entries;
        std::erase_if(left, [&](const auto& each) { return std::find(removed.begin(), removed.end(), each) != removed.end(); });
        return installedEntry(left);
    };
    for (const fs::path& file : lists()) {
        const KeyFile list = readKeyFile(file);
        if (auto entry = first(list.list(addedGroup, type)))
            return entry;
        const std::vector<std::string> taken = list.list(removedGroup, type);
        removed.insert(removed.end(), taken.begin(), taken.end());
    }
    for (const fs::path& folder : _folders.allDataDirectories()) {
        if (auto entry = first(readKeyFile(folder / "applications" / "mimeinfo.cache").list(cacheGroup, type)))
            return entry;
    }
    return std::nullopt;
}

std::optional<std::string> XDGLaunchServices::defaultHandler(std::string_view scheme) const {
    const std::string type = typeOf(scheme);
    std::optional<std::string> entry;
    for (const fs::path& file : lists()) {
        entry = installedEntry(readKeyFile(file).list(defaultGroup, type));
        if (entry)
            break;
    }
    if (!entry)
        entry = associatedEntry(type);
    return entry ? std::optional(entry->substr(0, entry->size() - entryExtension.size())) : std::nullopt;
}

void XDGLaunchServices::setDefaultHandler(std::string_view scheme, const std::string& bundleIdentifier) {
    if (!_folders.configHome)
        return;
    const std::string type = typeOf(scheme);
    const std::string value = bundleIdentifier + std::string(entryExtension) + ';';
    // A list of the present desktop's own comes first where it names a default as well.
    for (const std::string& desktop : _folders.desktops) {
        const fs::path file = *_folders.configHome / (desktop + "-" + std::string(listName));
        KeyFile list = readKeyFile(file);
        if (!list.value(defaultGroup, type))
            continue;
        list.set(defaultGroup, type, value);
        write(file, list);
    }
    const fs::path file = *_folders.configHome / listName;
    // One that is there and can't be read would lose all that is in it.
    const auto bytes = FileManager::contents(file);
    if (!bytes && FileManager::fileExists(file))
        return;
    KeyFile list(bytes.value_or(std::string()));
    list.set(defaultGroup, type, value);
    write(file, list);
}

} // namespace brindle::desktop
