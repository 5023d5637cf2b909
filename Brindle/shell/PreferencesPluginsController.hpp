#pragma once

#include "Brindle/shell/PreferencesPane.hpp"

namespace brindle {

/// A pane for extensions. Kept as is: it has nothing in it, and no tab shows it.
class PreferencesPluginsController : public PreferencesPane {};

} // namespace brindle
