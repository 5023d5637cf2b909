#pragma once

#include "cli/Command.hpp"

namespace brindle {

/// `prefs`: the preferences.
Command preferenceCommand();

} // namespace brindle
