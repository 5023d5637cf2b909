#pragma once

#include "Brindle/browser/FeedsOutlineViewDataControllerCollectionItem.hpp"
#include "foundation/Object.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// The row of one section: the collections, or the feeds. Thread: main.
class FeedsOutlineViewDataControllerCollectionGroup : public Object {
public:
    enum class Kind { collections, feeds };
    using Items = std::vector<std::shared_ptr<FeedsOutlineViewDataControllerCollectionItem>>;

    explicit FeedsOutlineViewDataControllerCollectionGroup(Kind groupKind, Items groupItems = {})
        : kind(groupKind), items(std::move(groupItems)) {}

    const Kind kind;
    const Items items; ///< empty for the feeds, whose rows are those of the library
};

} // namespace brindle
