#pragma once

#include "foundation/URLSession.hpp"

#include <optional>
#include <string>

namespace brindle {

/// Why an update gave no feed.
struct SyndicatedSessionError {
    enum class Case { connection, other, noData, noURL, invalidFeed };

    Case kind = Case::other;
    std::optional<URLError> error; ///< of `connection` and `other`

    /// One sentence for people, in English.
    std::string localizedDescription() const;
};

} // namespace brindle
