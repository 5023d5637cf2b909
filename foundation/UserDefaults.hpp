#pragma once

#include "foundation/NotificationCenter.hpp"
#include "foundation/UserDefaultsFile.hpp"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

namespace brindle {

/// The user's settings: values under flat text keys, kept in one file that several processes may share. Under a key stands what was set,
/// else the default that was registered, else nothing. A stored value hides the default also where it is of another type than the one asked
/// for. Thread: main.
///
/// Every read looks whether another process changed the file; a `Snapshot` spares many reads in a row all looks but one.
class UserDefaults {
public:
    using Value = UserDefaultsFile::Value;

    /// While one lives, reads don't look at the file, so that they agree with each other. It must not outlive its store.
    class Snapshot {
    public:
        explicit Snapshot(const UserDefaults& defaults);
        ~Snapshot() { --_defaults._snapshots; }
        Snapshot(const Snapshot&) = delete;
        Snapshot& operator=(const Snapshot&) = delete;

    private:
        const UserDefaults& _defaults;
    };

    /// Touches nothing; the file, and its folder, are made by the first write.
    explicit UserDefaults(std::filesystem::path file);

    /// Where the settings of a program lie: $XDG_CONFIG_HOME/PROGRAM/Preferences.plist, else below ~/.config (XDG Base Directory
    /// Specification); absent with no home.
    static std::optional<std::filesystem::path> standardFile(std::string_view program);

    /// Gives keys values to have until they are set; these are never written.
    void registerDefaults(const std::vector<std::pair<std::string, Value>>& defaults);

    /// False for no value and a value of another type; a number is true when it is not 0.
    bool boolForKey(std::string_view key) const;
    /// 0 for no value and a value of another type; 1 for true, the whole part of a real that fits.
    std::int64_t integerForKey(std::string_view key) const;
    /// 0 for no value and a value of another type; 1 for true.
    double doubleForKey(std::string_view key) const;
    /// Absent for no value and a value of another type; numbers are no text.
    std::optional<std::string> stringForKey(std::string_view key) const;
    /// The bytes; absent for no value and a value of another type.
    std::optional<std::string> dataForKey(std::string_view key) const;
    /// The value itself.
    std::optional<Value> object(std::string_view key) const;
    /// Whether nothing is set under the key.
    bool isDefault(std::string_view key) const;

    /// Sets a value, and writes it at once. What can't be written is kept in memory; `synchronize` tells.
    void set(std::string_view key, Value value);
    /// Unsets a key, and writes that at once, in the same way: its default shows again.
    void removeObject(std::string_view key);

    /// Writes what could not be written yet, and looks at the file; the failure, while something is not written.
    tl::expected<void, FileError> synchronize();

    using Observer = std::function<void()>;

    /// Calls `observer` when what stands under a key has changed: within `set` and `removeObject` (for any of them), and in a later turn of
    /// the main run loop after a read, a write or `synchronize` saw that another process changed it.
    [[nodiscard]] NotificationCenter::Token observe(std::string_view key, const Observer& observer);

private:
    const Value* find(std::string_view key) const;
    void look() const;
    void change(std::string_view key, std::optional<Value> value);
    tl::expected<void, FileError> write();
    void announceChanges(const UserDefaultsFile::Values& before) const;

    mutable UserDefaultsFile _file;
    mutable int _snapshots = 0;
    UserDefaultsFile::Changes _unwritten;
    std::map<std::string, Value, std::less<>> _registered;
    std::shared_ptr<NotificationCenter> _changes; ///< each notice has the key for its name
};

} // namespace brindle
