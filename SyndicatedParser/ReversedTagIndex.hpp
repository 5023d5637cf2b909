#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace brindle {

/// The distinct tags of a list, findable backwards from their ">", each with its places in the list. The views must outlive the index.
class ReversedTagIndex {
public:
    static constexpr std::size_t never = static_cast<std::size_t>(-1);

    /// The tags that end with the same `depth` characters, as a range of the sorted tags.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
        std::size_t depth = 0;
    };

    explicit ReversedTagIndex(const std::vector<std::string_view>& tags);

    Range all() const { return {0, _tags.size(), 0}; }

    /// The tags of `range` that have `character` in front of what they share.
    Range narrowed(const Range& range, char character) const;

    /// Whether a tag of `range` consists of the shared characters alone. It is the range's first.
    bool holdsWholeTag(const Range& range) const { return range.begin < range.end && _tags[range.begin].text.size() == range.depth; }

    /// Whether a tag of `range` has more than the shared characters.
    bool holdsLongerTag(const Range& range) const { return range.end - range.begin > (holdsWholeTag(range) ? 1U : 0U); }

    /// The first place in the list, at or after `place`, of the tag that is all of `range`'s shared characters; `never` when there is none.
    std::size_t nextPlace(const Range& range, std::size_t place) const;

private:
    struct Tag {
        std::string_view text;
        std::size_t firstPlace = 0; ///< index into `_places`
    };

    std::vector<Tag> _tags;           ///< sorted by their characters from the last to the first
    std::vector<std::size_t> _places; ///< ascending for each tag, tag after tag
};

} // namespace brindle
