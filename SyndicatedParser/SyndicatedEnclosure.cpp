#include "SyndicatedParser/SyndicatedEnclosure.hpp"

#include "foundation/Text.hpp"

namespace brindle {

SyndicatedEnclosure::Kind SyndicatedEnclosure::kindOfMIMEType(std::string_view type) {
    const std::string lowercased = text::lowercased(type);
    if (lowercased.starts_with("audio"))
        return Kind::audio;
    if (lowercased.starts_with("video"))
        return Kind::video;
    return Kind::other;
}

} // namespace brindle
