#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"
#include "platform/Button.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindle {

/// The preferences of the status icon, the counts, and the commands about the whole library. Thread: main.
class PreferencesAppearanceController : public PreferencesPane {
public:
    explicit PreferencesAppearanceController(PreferencesEnvironment environment);

    const std::vector<std::shared_ptr<Button>> menuIconStackView; ///< a button's tag is its index

    void menuIconIndexSelected(std::size_t tag);

private:
    void showMenuIconIndex();

    const PreferencesEnvironment _environment;
};

} // namespace brindle
