#pragma once

#include <string_view>

namespace brindle {

/// The makers' site, as user agents name it.
inline constexpr std::string_view makersSite = "https://brindle.invalid/";

} // namespace brindle
