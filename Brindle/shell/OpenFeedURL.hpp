#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"

#include <memory>
#include <string_view>

namespace brindle {

/// Takes the feed at an address that another program asks to be opened into the library: fetches it, and appends it to the end of the top
/// level. Null, and nothing happens, when no http or https URL comes of the address. Kept as is: whether the library has such a feed is
/// not asked. Thread: main.
std::shared_ptr<FeedItem> openFeedURL(std::string_view address, FeedsManager& feedsManager);

} // namespace brindle
