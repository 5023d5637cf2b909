#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `detect`: what a document is decoded and detected as.
Command detectCommand();

} // namespace brindle
