#include "foundation/UserDefaults.hpp"

#include "foundation/DispatchQueue.hpp"
#include "foundation/RunLoop.hpp"

#include <cstdlib>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

using Values = UserDefaultsFile::Values;

template <typename T>
const T* valueAs(const UserDefaults::Value* value) {
    return value != nullptr ? std::get_if<T>(value) : nullptr;
}

/// 1 for true, the whole part of a real; 0 for what is no number or does not fit.
std::int64_t integer(const UserDefaults::Value* value) {
    if (const auto* const integer = valueAs<std::int64_t>(value))
        return *integer;
    if (const auto* const flag = valueAs<bool>(value))
        return *flag ? 1 : 0;
    const auto* const real = valueAs<double>(value);
    // The comparison also refuses what is no number; 2^63 is the first real that does not fit.
    return real != nullptr && *real >= -0x1p63 && *real < 0x1p63 ? static_cast<std::int64_t>(*real) : 0;
}

bool holds(const Values& values, const Values::value_type& pair) {
    const auto found = values.find(pair.first);
    return found != values.end() && found->second == pair.second;
}

/// The keys whose values differ.
std::vector<std::string> changedKeys(const Values& before, const Values& after) {
    std::vector<std::string> keys;
    for (const auto& pair : after) {
        if (!holds(before, pair))
            keys.push_back(pair.first);
    }
    for (const auto& pair : before) {
        if (!after.contains(pair.first))
            keys.push_back(pair.first);
    }
    return keys;
}

} // namespace

UserDefaults::Snapshot::Snapshot(const UserDefaults& defaults) : _defaults(defaults) {
    defaults.look();
    ++defaults._snapshots;
}

UserDefaults::UserDefaults(fs::path file) : _file(std::move(file)), _changes(std::make_shared<NotificationCenter>()) {}

std::optional<fs::path> UserDefaults::standardFile(std::string_view program) {
    // Relative values are to be ignored.
    if (const char* const folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && folder[0] == '/')
        return fs::path(folder) / program / "Preferences.plist";
    if (const char* const home = std::getenv("HOME"); home != nullptr && home[0] == '/')
        return fs::path(home) / ".config" / program / "Preferences.plist";
    return std::nullopt;
}

void UserDefaults::registerDefaults(const std::vector<std::pair<std::string, Value>>& defaults) {
    assertMainThread();
    for (const auto& [key, value] : defaults)
        _registered.insert_or_assign(key, value);
}

bool UserDefaults::boolForKey(std::string_view key) const {
    const Value* const value = find(key);
    const auto* const real = valueAs<double>(value);
    return real != nullptr ? *real != 0 : integer(value) != 0;
}

std::int64_t UserDefaults::integerForKey(std::string_view key) const {
    return integer(find(key));
}

double UserDefaults::doubleForKey(std::string_view key) const {
    const Value* const value = find(key);
    const auto* const real = valueAs<double>(value);
    return real != nullptr ? *real : static_cast<double>(integer(value));
}

std::optional<std::string> UserDefaults::stringForKey(std::string_view key) const {
    const auto* const text = valueAs<std::string>(find(key));
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

std::optional<std::string> UserDefaults::dataForKey(std::string_view key) const {
    const auto* const data = valueAs<PropertyList::Data>(find(key));
    return data != nullptr ? std::optional(data->bytes) : std::nullopt;
}

std::optional<UserDefaults::Value> UserDefaults::object(std::string_view key) const {
    const Value* const value = find(key);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

bool UserDefaults::isDefault(std::string_view key) const {
    look();
    const auto unwritten = _unwritten.find(key);
    return unwritten != _unwritten.end() ? !unwritten->second : !_file.values().contains(key);
}

const UserDefaults::Value* UserDefaults::find(std::string_view key) const {
    look();
    const auto unwritten = _unwritten.find(key);
    if (unwritten != _unwritten.end() && unwritten->second)
        return &*unwritten->second;
    const auto stored = _file.values().find(key);
    if (unwritten == _unwritten.end() && stored != _file.values().end())
        return stored->second ? &*stored->second : nullptr;
    const auto registered = _registered.find(key);
    return registered != _registered.end() ? &registered->second : nullptr;
}

void UserDefaults::look() const {
    assertMainThread();
    if (_snapshots > 0)
        return;
    if (const auto before = _file.refresh())
        announceChanges(*before);
}

void UserDefaults::set(std::string_view key, Value value) {
    change(key, std::move(value));
}

void UserDefaults::removeObject(std::string_view key) {
    change(key, std::nullopt);
}

void UserDefaults::change(std::string_view key, std::optional<Value> value) {
    assertMainThread();
    _unwritten.insert_or_assign(std::string(key), std::move(value));
    static_cast<void>(write());
    _changes->post(key);
}

tl::expected<void, FileError> UserDefaults::synchronize() {
    look();
    return write();
}

tl::expected<void, FileError> UserDefaults::write() {
    if (_unwritten.empty())
        return {};
    Values before = _file.values();
    auto written = _file.apply(_unwritten);
    if (!written)
        return written;
    // What this process wrote is no news.
    for (const auto& [key, value] : _unwritten) {
        const auto stored = _file.values().find(key);
        before.erase(key);
        if (stored != _file.values().end())
            before.insert(*stored);
    }
    _unwritten.clear();
    announceChanges(before);
    return {};
}

void UserDefaults::announceChanges(const Values& before) const {
    std::vector<std::string> keys = changedKeys(before, _file.values());
    if (keys.empty())
        return;
    DispatchQueue::main().async([keys = std::move(keys), center = std::weak_ptr(_changes)] {
        for (const std::string& key : keys) {
            if (const auto changes = center.lock())
                changes->post(key);
        }
    });
}

NotificationCenter::Token UserDefaults::observe(std::string_view key, const Observer& observer) {
    assertMainThread();
    return _changes->addObserver(key, nullptr, [observer](const Notification&) { observer(); });
}

} // namespace brindle
