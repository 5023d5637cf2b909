#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `open-unread`: what opening all unread articles would open.
Command openUnreadCommand();

} // namespace brindle
