#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `article`: the page that the article view would load.
Command articlePageCommand();

} // namespace brindle
