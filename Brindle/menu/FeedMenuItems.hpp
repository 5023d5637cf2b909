#pragma once

#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/menu/MenuItemRepresentation.hpp"
#include "Brindle/menu/MenuRebuild.hpp"

#include <memory>

namespace brindle {

/// Appends an item for each entry of `feeds`, with all that is below it, to `menu`, and what represents it to `representations`. Takes no
/// stack for depth. Thread: main.
void appendFeedItems(
    const FeedsManager::Feeds& feeds, Menu& menu, MenuItemRepresentations& representations, const std::shared_ptr<MenuRebuild>& rebuild);

} // namespace brindle
