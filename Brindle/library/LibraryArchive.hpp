#pragma once

#include "Brindle/library/FeedGroup.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/PropertyList.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// The stored form of the tree: a keyed archive whose root is a group made for the write. Thread: main.
class LibraryArchive {
public:
    /// The root group is each entry's parent during the write; afterwards the entries have none.
    static tl::expected<std::string, PropertyList::Error> archivedData(const std::vector<std::shared_ptr<Feed>>& feeds);

    /// The root group; null when the archive's root is none. An archive with any class but those of the tree is refused.
    static tl::expected<std::shared_ptr<FeedGroup>, PropertyList::Error> unarchive(
        std::string_view bytes, const SyndicatedSessionEnvironment& environment);
};

} // namespace brindle
