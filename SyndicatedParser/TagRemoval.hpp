#pragma once

#include "SyndicatedParser/ReversedTagIndex.hpp"

#include <cstddef>
#include <queue>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// Removes a list of literal tags from a text: for each tag in turn every occurrence that is there at that moment, so that a tag which a
/// removal forms stays unless its turn is still to come.
///
/// The time is that of one look at the text, however many tags there are. A tag has one ">", its last character, so each ">" of the text
/// ends at most one tag at a time, and what stands before it is compared with all tags at once. A removal joins what stood before the tag
/// to the text behind it, whose next ">" may then end a tag; the comparison there goes on where it had to stop.
class TagRemoval {
public:
    /// Each of `tags` ends with its only ">". The views must outlive the object.
    TagRemoval(std::string_view text, const std::vector<std::string_view>& tags);

    std::string result();

private:
    /// A place in the text, seen from behind: the position of the next character to look at, and the last ">" at or before it.
    struct Cursor {
        std::ptrdiff_t position = -1;
        std::size_t stop = 0;
    };

    /// One ">" of the text. Stop 0 stands before the text and is never removed.
    struct Stop {
        std::ptrdiff_t position = -1;
        bool removed = false;
        Cursor before;                 ///< what is in front of the tag that was removed here
        Cursor reached;                ///< how far the comparison has come
        ReversedTagIndex::Range range; ///< the tags that agree so far
        std::size_t next = 0;          ///< a stop behind this one, none that is left being passed over
    };

    struct Removal {
        std::size_t turn = 0;
        std::size_t stop = 0;
        Cursor before;

        bool operator>(const Removal& other) const { return turn > other.turn; }
    };

    void compare(std::size_t stop, std::size_t firstTurn);
    bool isRemoved(const Cursor& cursor) const;
    void passRemoved(Cursor& cursor);
    std::size_t nextLeft(std::size_t stop);
    void removeAll();
    std::string remainder();

    std::string_view _text;
    ReversedTagIndex _index;
    std::vector<Stop> _stops;
    std::priority_queue<Removal, std::vector<Removal>, std::greater<>> _removals;
};

} // namespace brindle
