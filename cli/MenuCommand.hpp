#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `menu`: the status menu as the desktop program builds it.
Command menuCommand();

} // namespace brindle
