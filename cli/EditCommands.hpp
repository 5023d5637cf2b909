#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `add-group`: a new group at the end of the top level.
Command addGroupCommand();
/// `add-separator`: a new separator at the end of the top level.
Command addSeparatorCommand();
/// `edit`: the name or the update rate of an entry.
Command editCommand();
/// `remove`: takes an entry, with all below it, out of the tree.
Command removeCommand();

} // namespace brindle
