#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `tree`: the toolkit's tree of a document.
Command treeCommand();

} // namespace brindle
