#include "Brindle/shell/PreferencesMenuController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/shell/PreferenceCheckBox.hpp"
#include "foundation/Color.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <utility>

namespace brindle {

PreferencesMenuController::PreferencesMenuController(PreferencesEnvironment environment) : _environment(std::move(environment)) {
    const auto checkBox = [this](std::string_view key, std::string title) {
        return std::make_shared<PreferenceCheckBox>(
            _environment.defaults, key, std::move(title), [from = _environment] { from.updateMenu(); });
    };
    addSection(localized("Articles"),
        {{{}, {checkBox(preference::markMenuItems, localized("Mark articles with a check mark"))}},
            {{}, {checkBox(preference::markMenuItemsWhenRead, localized("Mark the read ones instead of the unread ones"))}},
            {{}, {checkBox(preference::useShortArticleNames, localized("Shorten long titles"))}},
            {{}, {checkBox(preference::allowBoldTextForUnreadArticles, localized("Unread titles in bold"))}},
            {{}, {checkBox(preference::allowCustomColorForUnreadArticles, localized("Unread titles in this color:")),
                     unreadArticlesColorWell}},
            {{}, {checkBox(preference::allowCustomColorForReadArticles, localized("Read titles in this color:")), readArticlesColorWell}}});
    addSection(localized("Preview"),
        {{{}, {checkBox(preference::allowFeedArticlePreview, localized("Show an article's text in its submenu"))}},
            {{}, {checkBox(preference::useCustomFontSizeForPreview, localized("In this font size:")), previewFontSizeField}}});
    fill(*readArticlesColorWell, preference::customColorForReadArticles);
    fill(*unreadArticlesColorWell, preference::customColorForUnreadArticles);
    previewFontSizeField->setDoubleValue(_environment.defaults->doubleForKey(preference::customFontSizeForPreview));
    previewFontSizeField->onChoose = [this] {
        _environment.defaults->set(preference::customFontSizeForPreview, previewFontSizeField->doubleValue());
    };
}

void PreferencesMenuController::fill(ColorWell& well, std::string_view key) {
    const auto data = _environment.defaults->dataForKey(key);
    if (const auto color = data ? Color::unarchive(*data) : std::nullopt)
        well.setColor(*color);
    well.onChoose = [this, &well, key] { colorWellChangedValue(well, key); };
}

void PreferencesMenuController::colorWellChangedValue(const ColorWell& well, std::string_view key) {
    auto data = well.color().archivedData();
    if (!data)
        return;
    _environment.defaults->set(key, PropertyList::Data{*std::move(data)});
    _environment.updateMenu();
}

} // namespace brindle
