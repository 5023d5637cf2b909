#pragma once

#include <string_view>

namespace brindle {

/// Ends the process because of a programming error, in every build: prints "Fatal error: " and the message on standard error and aborts.
[[noreturn]] void fatalError(std::string_view message);

} // namespace brindle
