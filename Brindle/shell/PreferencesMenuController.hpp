#pragma once

#include "Brindle/shell/PreferencesEnvironment.hpp"
#include "Brindle/shell/PreferencesPane.hpp"
#include "platform/ColorWell.hpp"
#include "platform/NumberField.hpp"

#include <memory>
#include <string_view>

namespace brindle {

/// The preferences of the articles in the status menu. Thread: main.
class PreferencesMenuController : public PreferencesPane {
public:
    explicit PreferencesMenuController(PreferencesEnvironment environment);

    const std::shared_ptr<ColorWell> readArticlesColorWell = std::make_shared<ColorWell>();
    const std::shared_ptr<ColorWell> unreadArticlesColorWell = std::make_shared<ColorWell>();
    const std::shared_ptr<NumberField> previewFontSizeField = std::make_shared<NumberField>(6, 72); ///< points

private:
    void fill(ColorWell& well, std::string_view key);
    void colorWellChangedValue(const ColorWell& well, std::string_view key);

    const PreferencesEnvironment _environment;
};

} // namespace brindle
