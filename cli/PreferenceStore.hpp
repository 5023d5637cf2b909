#pragma once

#include "cli/CommandResult.hpp"
#include "cli/Settings.hpp"
#include "foundation/UserDefaults.hpp"

#include <memory>
#include <tl/expected.hpp>

namespace brindle {

/// The preferences with their defaults: those beside the library where a support folder is given, else the desktop program's. Touches no
/// file. Thread: main.
tl::expected<std::shared_ptr<UserDefaults>, CommandError> openPreferences(const Settings& settings);

} // namespace brindle
