#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `import`: takes the feeds and groups of OPML files into the library.
Command importCommand();
/// `export`: writes the library as OPML.
Command exportCommand();

} // namespace brindle
