#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `discover`: the feeds that a web page announces.
Command discoverCommand();

} // namespace brindle
