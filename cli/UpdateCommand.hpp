#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `update`: fetches feeds once and saves the library.
Command updateCommand();

} // namespace brindle
