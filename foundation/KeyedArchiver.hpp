#pragma once

#include "foundation/Coding.hpp"
#include "foundation/PropertyList.hpp"

#include <memory>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// Writes an object graph as the original platform's keyed archive: a binary property list with "$version" 100000, "$archiver"
/// "NSKeyedArchiver", "$top" with "root", and "$objects", in which objects refer to each other by UID. An object that is reached twice is
/// written once. Works off a list, so depth costs no stack. Thread: that of the objects.
class KeyedArchiver {
public:
    static tl::expected<std::string, PropertyList::Error> archivedData(const std::shared_ptr<const Coding>& root);
    /// With an array as root object.
    static tl::expected<std::string, PropertyList::Error> archivedData(const std::vector<std::shared_ptr<const Coding>>& root);
};

} // namespace brindle
