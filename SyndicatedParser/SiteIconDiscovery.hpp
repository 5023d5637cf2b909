#pragma once

#include "SyndicatedParser/IconDiscovery.hpp"

#include <memory>

namespace brindle {

/// Finds a site's icon over the network: by the icon links of its root page, in page order, else at "favicon.ico". The first that can be
/// read is taken, whatever its format; what answers outside 2xx can't be read, and nothing but http and https is. The root page is given 60
/// seconds, and so is each icon.
class SiteIconDiscovery : public IconDiscovery {
public:
    void discoverIcon(const URL& root, std::function<void(std::optional<std::string> bytes)> completion) override;
};

} // namespace brindle
