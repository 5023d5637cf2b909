#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `add`: takes an address into the library as the add-feed dialog does.
Command addCommand();

} // namespace brindle
