#pragma once

#include "Brindle/library/Feed.hpp"
#include "platform/Menu.hpp"

#include <memory>

namespace brindle {

/// Appends the items that mark and open the articles of a feed or a group, and a separator. Thread: main.
void appendFeedMenuActions(Menu& menu, const std::shared_ptr<Feed>& feed);

} // namespace brindle
