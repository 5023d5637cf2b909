#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `list`: the tree of the library.
Command listCommand();

} // namespace brindle
