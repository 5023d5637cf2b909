#include "SyndicatedParser/SiteIconDiscovery.hpp"

#include "SyndicatedParser/Normalisation.hpp"
#include "SyndicatedParser/SyndicatedDiscovery.hpp"
#include "foundation/DispatchQueue.hpp"

#include <utility>

namespace brindle {

void SiteIconDiscovery::discoverIcon(const URL& root, std::function<void(std::optional<std::string> bytes)> completion) {
    SyndicatedDiscovery::discoverIcon(root, [root, completion = std::move(completion)](std::optional<std::string> bytes) {
        if (bytes)
            return completion(std::move(bytes));
        const std::optional<URL> favicon = sanitizedURL(root, "favicon.ico");
        if (!favicon)
            return completion(std::nullopt);
        SyndicatedDiscovery::readIcon(*favicon, [completion](std::optional<std::string> icon) {
            // Kept as is: an empty file is no icon here, while one behind an icon link is.
            completion(icon && !icon->empty() ? std::move(icon) : std::nullopt);
        });
    });
}

} // namespace brindle
