#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"

namespace brindle {

/// The preferences of the feeds browser. Thread: main.
class PreferencesFeedsBrowserController : public PreferencesPane {
public:
    explicit PreferencesFeedsBrowserController(const PreferencesEnvironment& environment);
};

} // namespace brindle
