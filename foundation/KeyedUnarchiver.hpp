#pragma once

#include "foundation/Coding.hpp"
#include "foundation/PropertyList.hpp"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// Reads what `KeyedArchiver`, or the original platform, wrote. Only registered classes are made; an object of any other class refuses the
/// whole archive, as secure coding does. Objects are made children first, without recursion; an object that (by a damaged archive) contains
/// itself reads as absent there. Refused is also an archive whose objects share so much that reading it for each of them would take far
/// more than the archive holds. Thread: any, one at a time.
class KeyedUnarchiver {
public:
    /// Makes an object of its fields; null when they don't suffice, which leaves it out of whatever holds it.
    using Factory = std::function<std::shared_ptr<Coding>(const Decoder& decoder)>;

    void setClass(std::string className, Factory factory);

    /// Whether dictionaries may stand in the archive, as arrays always may. They may not unless told.
    void setAllowsDictionaries(bool allows) { _allowsDictionaries = allows; }

    /// The root object; null when it could not be made or is no object of a registered class.
    tl::expected<std::shared_ptr<Coding>, PropertyList::Error> unarchive(std::string_view bytes) const;

    /// The elements of a root array, in order; absent when the root is no array, or any element of it was not made.
    tl::expected<std::optional<std::vector<std::shared_ptr<Coding>>>, PropertyList::Error> unarchiveArray(std::string_view bytes) const;

private:
    std::map<std::string, Factory, std::less<>> _factories;
    bool _allowsDictionaries = false;
};

} // namespace brindle
