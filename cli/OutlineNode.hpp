#pragma once

#include "Brindle/browser/FeedsOutlineViewDataController.hpp"

#include <nlohmann/json.hpp>
#include <string>

namespace brindle {

/// The rows of the browser's outline with all below them as an array, each with what it shows; `count` is null for a row without a counter.
/// Takes no stack for depth. Thread: main.
nlohmann::ordered_json outlineNodes(const FeedsOutlineViewDataController& outline);

/// The same for people: a line for each row, indented by its depth.
std::string outlineText(const FeedsOutlineViewDataController& outline);

} // namespace brindle
