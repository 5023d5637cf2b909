#pragma once

#include "foundation/URL.hpp"

#include <optional>
#include <string_view>

namespace brindle {

/// The http or https URL behind an address that comes from outside the program: http and https as they are, "feed" as http. Absent for any
/// other scheme, a scheme that is not in lower case, and an address that gives no URL then. Thread: any.
std::optional<URL> normalizedFeedURL(const URL& url);

/// The URL of an address as a person types it, with "http://" in front unless it starts with "http", and normalised as above. Absent when
/// none comes of it. Thread: any.
std::optional<URL> typedFeedURL(std::string_view text);

} // namespace brindle
