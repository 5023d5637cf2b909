#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindle::html {

/// Resolves `reference` against `base` by RFC 3986, section 5.2. The parts are taken as they stand, without check or normalisation but for
/// dot segments. Nothing where no URL with a scheme comes of it: a relative reference needs a base that has a scheme. Safe on every thread.
std::optional<std::string> absoluteURL(std::string_view base, std::string_view reference);

} // namespace brindle::html
