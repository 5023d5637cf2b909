#include "cli/Library.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/LibraryArchive.hpp"
#include "SyndicatedParser/SiteIconDiscovery.hpp"
#include "cli/GatedRoute.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/Text.hpp"

#include <cerrno>
#include <chrono>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view libraryName = "Feeds.brindle";
constexpr std::string_view legacyName = "Feeds Library.brindle";
constexpr std::string_view lockName = ".lock";

tl::expected<fs::path, CommandError> supportFolder(const Settings& settings) {
    if (settings.supportDirectory)
        return *settings.supportDirectory;
    const auto data = FileManager::applicationSupportDirectory();
    if (!data)
        return failure("Could not find Application Support folder for current user!");
    return *data / "Brindle";
}

tl::expected<FileLock, CommandError> lockFolder(const fs::path& folder) {
    if (const auto made = FileManager::createDirectory(folder); !made)
        return failure(made.error().message);
    auto lock = FileLock::tryLock(folder / lockName);
    if (!lock)
        return failure(lock.error().message);
    if (!*lock)
        return failure("the library in " + folder.string() + " is in use by another program");
    return **std::move(lock);
}

/// "@2.0" as the places 2 and 0; absent for any other form.
std::optional<std::vector<std::size_t>> placesOf(std::string_view name) {
    std::vector<std::size_t> places;
    do {
        name.remove_prefix(1); // the "@" or the dot
        const std::string_view digits = name.substr(0, name.find('.'));
        const auto place = digits.starts_with('+') ? std::nullopt : text::integer(digits);
        if (!place || *place < 0)
            return std::nullopt;
        places.push_back(static_cast<std::size_t>(*place));
        name.remove_prefix(digits.size());
    } while (!name.empty());
    return places;
}

} // namespace

Library::Network Library::network(const Arguments& arguments) {
    return arguments.has("no-icons") ? Network::feeds : Network::feedsAndIcons;
}

tl::expected<std::unique_ptr<Library>, CommandError> Library::open(const Settings& settings, Purpose purpose, Network network) {
    const auto folder = supportFolder(settings);
    if (!folder)
        return tl::unexpected(folder.error());
    // The import of a library of the first versions moves its file away, so what was read must be stored at once.
    const bool imports = FileManager::fileExists(*folder / legacyName);
    const bool writes = imports || purpose == Purpose::writing;
    std::optional<FileLock> lock;
    if (writes) {
        auto taken = lockFolder(*folder);
        if (!taken)
            return tl::unexpected(std::move(taken.error()));
        lock = *std::move(taken);
    }
    const auto route = std::make_shared<GatedRoute>(network == Network::none ? absentNetworkRoute() : defaultNetworkRoute());
    const auto icons = network == Network::feedsAndIcons ? std::make_shared<SiteIconDiscovery>() : nullptr;
    const SyndicatedSessionEnvironment environment = {settings.clock, route, icons};
    std::unique_ptr<Library> library(new Library(*folder, std::move(lock), environment));
    if (writes)
        library->_manager->createSupportDirectories();
    library->_manager->load();
    if (auto checked = library->checkStoredTree(writes); !checked)
        return tl::unexpected(std::move(checked.error()));
    if (imports) {
        if (auto saved = library->save(); !saved)
            return tl::unexpected(std::move(saved.error()));
    }
    // Only now, that no session which the load made fetches by itself.
    route->open();
    return library;
}

Library::Library(fs::path folder, std::optional<FileLock> lock, SyndicatedSessionEnvironment environment)
    : _folder(std::move(folder)), _lock(std::move(lock)), _answers(std::make_shared<FeedAnswers>()),
      _manager(std::make_shared<FeedsManager>(_folder, std::move(environment), _answers)) {}

tl::expected<void, CommandError> Library::checkStoredTree(bool writes) const {
    const fs::path file = _folder / libraryName;
    if (!_manager->feeds.empty())
        return {};
    const auto bytes = FileManager::contents(file);
    if (!bytes && bytes.error().code == ENOENT)
        return {};
    if (!bytes)
        return failure(bytes.error().message);
    // A damaged library is an empty one. To look at it does no harm, but the next save would replace it.
    if (!writes)
        return {};
    const auto root = LibraryArchive::unarchive(*bytes, _manager->environment());
    if (root && *root)
        return {};
    const std::string fault = root ? "Its root is no group of feeds" : root.error().message;
    return failure("the library in " + file.string() + " can't be read: " + fault);
}

tl::expected<std::shared_ptr<Feed>, CommandError> Library::feed(const std::string& name) {
    if (name.starts_with('@'))
        return feedAtPlace(name);
    const auto uuid = UUID::make(name);
    if (!uuid)
        return wrongUsage("'" + name + "' is neither a UUID nor a place like @2.0");
    if (_items.empty()) {
        for (const std::shared_ptr<FeedItem>& item : FeedsManager::items(_manager->feeds))
            _items.emplace(item->uuid, item);
    }
    const auto item = _items.find(*uuid);
    if (item == _items.end())
        return failure("no feed has the UUID " + uuid->uuidString());
    return item->second;
}

tl::expected<std::shared_ptr<Feed>, CommandError> Library::feedAtPlace(const std::string& name) const {
    const auto places = placesOf(name);
    if (!places)
        return wrongUsage("'" + name + "' is neither a UUID nor a place like @2.0");
    const FeedsManager::Feeds* list = &_manager->feeds;
    std::shared_ptr<Feed> found;
    for (const std::size_t place : *places) {
        if (!list || place >= list->size())
            return failure("nothing is at " + name);
        found = (*list)[place];
        list = found->kind == Feed::Kind::group ? &static_cast<const FeedGroup&>(*found).feeds() : nullptr;
    }
    return found;
}

tl::expected<FeedsManager::Feeds, CommandError> Library::feeds(const std::optional<std::string>& name) {
    if (!name)
        return _manager->feeds;
    auto found = feed(*name);
    if (!found)
        return tl::unexpected(std::move(found.error()));
    return FeedsManager::Feeds{*std::move(found)};
}

void Library::bringBack(const FeedsManager::Feeds& list) {
    for (const std::shared_ptr<FeedItem>& item : FeedsManager::items(list)) {
        if (item->data.empty())
            continue;
        item->session().start(item->data);
        _answers->expect(*item);
    }
    // Parsing always ends; there is nothing from outside to wait for.
    _answers->wait(std::chrono::hours(24));
}

tl::expected<void, CommandError> Library::save() {
    // The console says why.
    if (!_manager->save())
        return failure("the library in " + _folder.string() + " could not be saved");
    return {};
}

} // namespace brindle
