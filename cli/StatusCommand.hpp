#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `status`: what the status item and the dock show.
Command statusCommand();

} // namespace brindle
