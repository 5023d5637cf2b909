#pragma once

#include <string_view>

namespace brindle {

/// Writes all of `bytes` to a descriptor: 0, or the errno of what failed.
int writeAll(int descriptor, std::string_view bytes);

} // namespace brindle
