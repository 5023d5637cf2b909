#pragma once

#include "foundation/Date.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <variant>
#include <vector>

namespace brindle {

/// A property list as a flat table of objects: arrays and dictionaries hold indices into it, so that shared objects stay shared and no
/// operation recurses over depth. Index 0 up; `root` names the top object. Thread: a value.
class PropertyList {
public:
    using Index = std::uint32_t;
    using Array = std::vector<Index>;
    /// Pairs of key object and value object, in order.
    using Dictionary = std::vector<std::pair<Index, Index>>;
    struct Null {};
    struct Data {
        std::string bytes;

        friend bool operator==(const Data&, const Data&) = default;
    };
    /// A keyed archive's reference into its own "$objects".
    struct UID {
        std::uint64_t value = 0;
    };
    /// Integers are signed 64-bit; an unsigned one above that range is read as a real.
    using Object = std::variant<Null, bool, std::int64_t, double, Date, Data, std::string, UID, Array, Dictionary>;

    struct Error {
        std::string message;
    };

    std::vector<Object> objects;
    Index root = 0;

    /// Appends an object and gives its index. Fatal above 2^32 - 1 objects.
    Index add(Object object);

    const Object& at(Index index) const { return objects[index]; }
    template <typename T>
    const T* get(Index index) const {
        return index < objects.size() ? std::get_if<T>(&objects[index]) : nullptr;
    }

    /// The value stored under a text key of a dictionary object; absent when `dictionary` is none or has no such key. The first of repeated
    /// keys counts.
    std::optional<Index> value(Index dictionary, std::string_view key) const;

    /// A number's whole part, 1 and 0 for the booleans; absent for anything else and for what does not fit.
    std::optional<std::int64_t> integer(Index index) const;

    /// Reads the binary form ("bplist00") or the XML form, told apart by the first bytes. Every offset and count is checked; indices in the
    /// result are valid.
    static tl::expected<PropertyList, Error> read(std::string_view bytes);

    /// The binary form ("bplist00"), equal strings and numbers written once.
    std::string binary() const;
};

} // namespace brindle
