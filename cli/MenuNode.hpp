#pragma once

#include "platform/Menu.hpp"
#include "platform/ResponderChain.hpp"

#include <nlohmann/json.hpp>
#include <string>

namespace brindle {

/// The items of a menu with all below them as an array, each enabled as a person sees it once its menu is open. Takes no stack for depth.
/// Thread: main.
nlohmann::ordered_json menuNodes(Menu& menu, const ResponderChain& chain);

/// The same for people: a line for each item, indented by its depth, without previews.
std::string menuOutline(Menu& menu, const ResponderChain& chain);

} // namespace brindle
