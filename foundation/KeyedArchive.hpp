#pragma once

#include "foundation/Coding.hpp"
#include "foundation/PropertyList.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// A keyed archive while it is read: its objects, and what has been made of them so far, by their places in "$objects".
///
/// What objects share stands in the archive once and is read for each of them, so that a small archive may ask for any amount of work. All
/// reading is paid for from an allowance that grows with the archive; where that is spent, everything reads as missing. Thread: any, one
/// at a time.
class KeyedArchive {
public:
    using Index = PropertyList::Index;
    /// The classes that are understood without being registered.
    enum class InstanceKind { text, array, dictionary };
    static std::optional<InstanceKind> containerKind(std::string_view className);

    KeyedArchive() = default;
    KeyedArchive(const KeyedArchive&) = delete;
    KeyedArchive& operator=(const KeyedArchive&) = delete;

    /// Reads the archive's objects, and gives the reference to its root, which leads to a place.
    tl::expected<Index, PropertyList::Error> open(std::string_view bytes);

    Index object(std::size_t place) const { return (*_objects)[place]; }
    const PropertyList& list() const { return _list; }

    /// Takes `cost` from the allowance; false where that was more than was left.
    bool spend(std::size_t cost);
    bool isSpent() const { return _isSpent; }

    /// As `PropertyList::value`.
    std::optional<Index> value(Index dictionary, std::string_view key);

    /// The place that a reference in the list leads to; absent for anything else and for the null object.
    std::optional<std::size_t> place(Index reference) const;

    /// The class of the instance at a place; absent for plain values. Names a class without a name as the empty text.
    std::optional<std::string_view> className(std::size_t place);

    // What `value` is or leads to; absent for what is of another type.
    std::optional<std::string> text(Index value);
    std::optional<std::int64_t> integer(Index value) const;
    std::optional<std::string> data(Index value);

    /// The references under a key of the container instance that `value` leads to; null for anything else.
    const PropertyList::Array* elements(Index value, InstanceKind kind, std::string_view key);

    /// What was made of the object that `value` leads to; null where that is none.
    std::shared_ptr<Coding> objectAt(Index value) const {
        const std::optional<std::size_t> found = place(value);
        return found ? made[*found] : nullptr;
    }

    std::vector<std::shared_ptr<Coding>> made;

private:
    PropertyList _list;
    const PropertyList::Array* _objects = nullptr;
    std::size_t _allowance = 0; ///< about the bytes that may still be made
    bool _isSpent = false;
};

} // namespace brindle
