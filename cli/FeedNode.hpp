#pragma once

#include "Brindle/library/FeedsManager.hpp"

#include <nlohmann/json.hpp>
#include <string>

namespace brindle {

/// Entries of the tree with all below them as an array of nodes; an item's `articles` and `unread` are those of its latest parse, a group's
/// the sums of all below it. Takes no stack for depth. Thread: main.
nlohmann::ordered_json feedNodes(const FeedsManager::Feeds& list);

/// The same for people: one line for each entry, indented by its depth.
std::string feedOutline(const FeedsManager::Feeds& list);

} // namespace brindle
