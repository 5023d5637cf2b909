#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `keep`: saves an article beyond the life of its feed's entry.
Command keepCommand();
/// `unkeep`: takes an article out of the saved ones.
Command unkeepCommand();
/// `saved`: the saved articles.
Command savedCommand();

} // namespace brindle
