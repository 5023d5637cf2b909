#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"

namespace brindle {

/// The preferences of where each collection is shown. Thread: main.
class PreferencesCollectionsViewController : public PreferencesPane {
public:
    explicit PreferencesCollectionsViewController(const PreferencesEnvironment& environment);
};

} // namespace brindle
