#pragma once

#include "cli/CommandResult.hpp"

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace brindle {

/// The bytes of the file that a command line names, whole; `-` is standard input.
tl::expected<std::string, CommandError> readInput(std::string_view file);

} // namespace brindle
