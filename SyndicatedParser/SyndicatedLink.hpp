#pragma once

#include "foundation/URL.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

/// What a link is to the document that holds it. The values are stored in archives.
enum class SyndicatedLinkRelation { alternate = 0, related, self, enclosure, via, unknown };

/// The relation that a text names, compared in lower case; any other text is `unknown`.
SyndicatedLinkRelation linkRelation(std::string_view text);

/// The relation's name; "__unknown__" for `unknown`.
std::string_view name(SyndicatedLinkRelation relation);

/// A link of a feed or an entry.
struct SyndicatedLink {
    std::optional<URL> url;
    std::string title;
    SyndicatedLinkRelation relation = SyndicatedLinkRelation::alternate;
    std::int64_t length = 0; ///< bytes, 0 when unknown

    /// Titles and relations are equal and, where both have one, the URLs too. `length` is not compared.
    friend bool operator==(const SyndicatedLink& a, const SyndicatedLink& b);
};

} // namespace brindle
