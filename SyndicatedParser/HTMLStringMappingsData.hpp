#pragma once

#include <string_view>

namespace brindle {

/// The table of `HTMLStringMappings`: the base64 form (RFC 4648) of a binary property list, a dictionary from name to replacement.
extern const std::string_view htmlStringMappingsData;

} // namespace brindle
