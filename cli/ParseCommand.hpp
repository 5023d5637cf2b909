#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `parse`: documents through one session's feed, one after another, as consecutive fetches would go.
Command parseCommand();

} // namespace brindle
