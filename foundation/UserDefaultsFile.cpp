#include "foundation/UserDefaultsFile.hpp"

#include "foundation/FileLock.hpp"
#include "foundation/FileManager.hpp"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace brindle {

namespace fs = std::filesystem;

namespace {

using Value = UserDefaultsFile::Value;
using Index = PropertyList::Index;

/// Absent for an object of a kind that no value has.
template <typename Object>
std::optional<Value> valueOf(const Object& object) {
    if constexpr (std::is_constructible_v<Value, std::in_place_type_t<Object>, const Object&>)
        return Value(std::in_place_type<Object>, object);
    else
        return std::nullopt;
}

UserDefaultsFile::Values valuesOf(const PropertyList& list) {
    UserDefaultsFile::Values values;
    if (const auto* const pairs = list.get<PropertyList::Dictionary>(list.root)) {
        for (const auto& [key, value] : *pairs) {
            if (const auto* const text = list.get<std::string>(key))
                values.try_emplace(*text, std::visit([](const auto& object) { return valueOf(object); }, list.at(value)));
        }
    }
    return values;
}

PropertyList emptyList() {
    PropertyList list;
    list.root = list.add(PropertyList::Dictionary());
    return list;
}

/// The list with a dictionary at its root; an empty one where `bytes` are damaged or hold something else.
PropertyList listOf(std::string_view bytes) {
    auto list = PropertyList::read(bytes);
    return list && list->get<PropertyList::Dictionary>(list->root) ? *std::move(list) : emptyList();
}

void change(PropertyList& list, const std::string& key, const std::optional<Value>& value) {
    auto pairs = std::get<PropertyList::Dictionary>(list.at(list.root));
    std::erase_if(pairs, [&](const auto& pair) {
        const auto* const text = list.get<std::string>(pair.first);
        return text != nullptr && *text == key;
    });
    if (value) {
        const Index keyIndex = list.add(key);
        pairs.emplace_back(keyIndex, list.add(std::visit([](const auto& plain) { return PropertyList::Object(plain); }, *value)));
    }
    list.objects[list.root] = std::move(pairs);
}

/// The list without the objects that nothing leads to: else a file would keep all that it ever held.
PropertyList pruned(const PropertyList& list) {
    PropertyList result;
    std::vector<std::optional<Index>> places(list.objects.size());
    const auto place = [&](Index index) {
        if (!places[index])
            places[index] = result.add(list.at(index));
        return *places[index];
    };
    result.root = place(list.root);
    for (Index next = 0; next < result.objects.size(); ++next) {
        // Taken out while its references are changed, since the table may move.
        PropertyList::Object object = std::move(result.objects[next]);
        if (auto* const array = std::get_if<PropertyList::Array>(&object))
            std::transform(array->begin(), array->end(), array->begin(), place);
        if (auto* const pairs = std::get_if<PropertyList::Dictionary>(&object)) {
            for (auto& [key, value] : *pairs) {
                key = place(key);
                value = place(value);
            }
        }
        result.objects[next] = std::move(object);
    }
    return result;
}

/// Others hold the lock for the length of one write. One that holds it longer hangs, and is not to hang this process as well.
tl::expected<FileLock, FileError> lockForWriting(const fs::path& path) {
    constexpr std::chrono::milliseconds pause(5);
    const fs::path file = path.parent_path() / ("." + path.filename().string() + ".lock");
    for (int attempts = 400; attempts > 0; --attempts) {
        auto lock = FileLock::tryLock(file);
        if (!lock)
            return tl::unexpected(lock.error());
        if (*lock)
            return **std::move(lock);
        std::this_thread::sleep_for(pause);
    }
    return tl::unexpected(FileError::of(EWOULDBLOCK, "lock", file));
}

bool isEqual(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

} // namespace

bool UserDefaultsFile::isSame(const std::optional<Identity>& a, const std::optional<Identity>& b) {
    if (!a || !b)
        return !a && !b;
    return a->device == b->device && a->file == b->file && a->size == b->size && isEqual(a->modified, b->modified) &&
           isEqual(a->changed, b->changed);
}

std::optional<UserDefaultsFile::Identity> UserDefaultsFile::look() const {
    struct stat status {};
    if (::stat(_path.c_str(), &status) != 0)
        return std::nullopt;
    return Identity{status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
}

std::optional<UserDefaultsFile::Values> UserDefaultsFile::refresh() {
    const auto found = look();
    if (isSame(found, _seen))
        return std::nullopt;
    // A file that is replaced after the look is read as the newer one, and read once more next time.
    _seen = found;
    const auto bytes = FileManager::contents(_path);
    return std::exchange(_values, bytes ? valuesOf(listOf(*bytes)) : Values());
}

tl::expected<void, FileError> UserDefaultsFile::apply(const Changes& changes) {
    if (auto made = FileManager::createDirectory(_path.parent_path()); !made)
        return made;
    const auto lock = lockForWriting(_path);
    if (!lock)
        return tl::unexpected(lock.error());
    const auto bytes = FileManager::contents(_path);
    if (!bytes && bytes.error().code != ENOENT)
        return tl::unexpected(bytes.error());
    PropertyList list = bytes ? listOf(*bytes) : emptyList();
    for (const auto& [key, value] : changes)
        change(list, key, value);
    list = pruned(list);
    if (auto written = FileManager::writeAtomically(_path, list.binary()); !written)
        return written;
    // Nobody else writes before the lock is gone.
    _seen = look();
    _values = valuesOf(list);
    return {};
}

} // namespace brindle
