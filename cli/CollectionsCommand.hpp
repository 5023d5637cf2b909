#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `collections`: the articles of today, the unread and the saved ones.
Command collectionsCommand();

} // namespace brindle
