#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `open`: takes a feed into the library as a link from another program does.
Command openCommand();

} // namespace brindle
