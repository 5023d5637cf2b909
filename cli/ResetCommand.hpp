#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `reset`: lets icons or all feeds' files go.
Command resetCommand();

} // namespace brindle
