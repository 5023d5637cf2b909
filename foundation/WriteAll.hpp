#pragma once

#include <string_view>

namespace brindle {

/// Writes all of `bytes` to a descriptor: 0, or the errno of what failed, which is then `errno` as well. Thread: any.
int writeAll(int descriptor, std::string_view bytes);

} // namespace brindle
