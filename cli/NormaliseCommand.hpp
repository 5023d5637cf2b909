#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `normalise`: one of the small cleaning operations that texts of feeds and addresses go through.
Command normaliseCommand();

} // namespace brindle
