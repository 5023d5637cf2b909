#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `outline`: the rows of the browser's outline.
Command outlineCommand();

} // namespace brindle
