#pragma once

#include "foundation/Object.hpp"

namespace brindle {

/// The row of one collection. Thread: main.
class FeedsOutlineViewDataControllerCollectionItem : public Object {
public:
    enum class Kind { today, unread, saved, separator, feeds };

    explicit FeedsOutlineViewDataControllerCollectionItem(Kind itemKind) : kind(itemKind) {}

    const Kind kind;
};

} // namespace brindle
