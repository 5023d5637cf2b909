#pragma once

#include "Brindle/library/Feed.hpp"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// A folder of the tree. Its operations work on its own children and never descend. Thread: main.
class FeedGroup : public Feed {
public:
    static std::shared_ptr<FeedGroup> make(std::string name);
    /// Null never: missing values give an empty name and no children. Sets the children's parents.
    static std::shared_ptr<FeedGroup> decode(const Decoder& decoder);
    ~FeedGroup() override;

    const std::vector<std::shared_ptr<Feed>>& feeds() const { return _feeds; }

    /// Inserts `feed` at `index`, or at the end for an index outside 0 to the count, and becomes its parent. The entry is not taken out of
    /// an earlier parent.
    void add(const std::shared_ptr<Feed>& feed, std::ptrdiff_t index);
    /// Takes out the first entry that is `feed` and empties its parent; nothing where it is no child.
    void remove(const std::shared_ptr<Feed>& feed);
    void removeAll();

    std::vector<std::string_view> archiveClasses() const override;
    void encode(Coder& coder) const override;

private:
    explicit FeedGroup(std::string name) : Feed(Kind::group, std::move(name)) {}

    std::vector<std::shared_ptr<Feed>> _feeds;
};

} // namespace brindle
