#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `move`: moves entries of the tree as dragging them in the browser's outline would.
Command moveCommand();

} // namespace brindle
