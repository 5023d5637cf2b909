#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `reachability`: the state of the machine's default route, or of a flag word.
Command reachabilityCommand();

} // namespace brindle
