#pragma once

#include "foundation/URL.hpp"

#include <functional>
#include <optional>
#include <string>

namespace brindle {

/// Finds a site's icon.
class IconDiscovery {
public:
    virtual ~IconDiscovery() = default;

    /// Looks for the icon of the site at `root` (scheme and host only) and gives its bytes, or nothing, to `completion` on the main queue.
    /// Returns at once. Thread: any.
    virtual void discoverIcon(const URL& root, std::function<void(std::optional<std::string> bytes)> completion) = 0;
};

} // namespace brindle
