#pragma once

#include "foundation/XMLParser.hpp"

#include <memory>
#include <optional>
#include <tl/expected.hpp>

namespace brindle {

class SyndicatedFeed;

/// Why a document gave no feed. `error` belongs to `parseError` and is absent where no XML parser ran.
struct SyndicatedFeedParserError {
    enum class Case { parseError, emptyString, invalidFeed };

    Case kind = Case::parseError;
    std::optional<XMLParserError> error;
};

using SyndicatedFeedParserResult = tl::expected<std::shared_ptr<SyndicatedFeed>, SyndicatedFeedParserError>;

} // namespace brindle
