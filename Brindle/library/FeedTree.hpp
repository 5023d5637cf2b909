#pragma once

#include "Brindle/library/FeedGroup.hpp"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace brindle {

/// Calls `visit` with every entry of `list` and below it, a group before its children. Takes no stack for depth. `visit` must not change
/// the tree.
template <typename Visitor>
void forEachFeed(const std::vector<std::shared_ptr<Feed>>& list, Visitor visit) {
    std::vector<std::pair<const std::vector<std::shared_ptr<Feed>>*, std::size_t>> open{{&list, 0}};
    while (!open.empty()) {
        auto& [feeds, next] = open.back();
        if (next == feeds->size()) {
            open.pop_back();
            continue;
        }
        const std::shared_ptr<Feed>& feed = (*feeds)[next++];
        visit(feed);
        if (feed->kind == Feed::Kind::group)
            open.emplace_back(&static_cast<const FeedGroup&>(*feed).feeds(), 0);
    }
}

} // namespace brindle
