#pragma once

#include "foundation/FileError.hpp"
#include "foundation/PropertyList.hpp"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <tl/expected.hpp>
#include <variant>

namespace brindle {

/// The file of a `UserDefaults`: a property list, binary or XML, with a dictionary at its root. Several processes may read and write it; a
/// file named as it with ".lock" behind, hidden, holds apart those that write. Thread: any, one at a time.
class UserDefaultsFile {
public:
    using Value = std::variant<bool, std::int64_t, double, std::string, PropertyList::Data>;
    /// What the file holds by key; absent: a value of a kind that is none of these, which is kept through all writes.
    using Values = std::map<std::string, std::optional<Value>, std::less<>>;
    /// What is to be changed by key; absent: the key is to be removed.
    using Changes = std::map<std::string, std::optional<Value>, std::less<>>;

    /// Touches nothing.
    explicit UserDefaultsFile(std::filesystem::path path) : _path(std::move(path)) {}

    /// Reads the file when it is not the one that was read last, which costs one `stat` to know. Gives the values from before where it
    /// did. A file that is missing or damaged counts as empty.
    std::optional<Values> refresh();

    const Values& values() const { return _values; }

    /// Changes what the file holds now, which is read again, and replaces it atomically; its folder is made where it is missing. Nothing is
    /// written, and the file stays as it is, on failure: one that can't be read is not replaced. Waits for others who write, not for long.
    tl::expected<void, FileError> apply(const Changes& changes);

private:
    /// By what a file is known to be the one that was read.
    struct Identity {
        dev_t device = 0;
        ino_t file = 0;
        off_t size = 0;
        timespec modified{};
        timespec changed{};
    };

    static bool isSame(const std::optional<Identity>& a, const std::optional<Identity>& b);
    std::optional<Identity> look() const;

    std::filesystem::path _path;
    std::optional<Identity> _seen; ///< of the file that was read last; absent: there was none
    Values _values;
};

} // namespace brindle
