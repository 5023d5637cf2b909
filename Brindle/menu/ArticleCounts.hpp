#pragma once

#include "Brindle/library/FeedsManager.hpp"

#include <cstddef>
#include <optional>
#include <unordered_map>

namespace brindle {

/// How many articles every entry of a tree has, as it was at the time of counting: a feed its own, a group those of all below it. One walk
/// for all of them, which takes no stack for depth. Thread: main.
class ArticleCounts {
public:
    struct Count {
        std::size_t unread = 0;
        std::size_t read = 0;

        Count& operator+=(const Count& other);
        friend bool operator==(const Count&, const Count&) = default;
    };

    explicit ArticleCounts(const FeedsManager::Feeds& list);

    /// Of the whole list.
    const Count& total() const { return _total; }
    /// Absent for an entry that is not in the list or below it.
    std::optional<Count> of(const Feed& feed) const;

private:
    std::unordered_map<const Feed*, Count> _counts;
    Count _total;
};

} // namespace brindle
