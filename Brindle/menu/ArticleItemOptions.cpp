#include "Brindle/menu/ArticleItemOptions.hpp"

#include "Brindle/library/PreferenceKeys.hpp"

#include <optional>
#include <string_view>

namespace brindle {

namespace {

std::optional<Color> color(const UserDefaults& defaults, std::string_view isAllowed, std::string_view key) {
    const auto data = defaults.boolForKey(isAllowed) ? defaults.dataForKey(key) : std::nullopt;
    return data ? Color::unarchive(*data) : std::nullopt;
}

std::shared_ptr<const TextStyle> shared(const TextStyle& style) {
    return style.isPlain() ? nullptr : std::make_shared<const TextStyle>(style);
}

} // namespace

ArticleItemOptions ArticleItemOptions::read(const UserDefaults& defaults) {
    ArticleItemOptions options;
    options.marksItems = defaults.boolForKey(preference::markMenuItems);
    options.marksItemsWhenRead = defaults.boolForKey(preference::markMenuItemsWhenRead);
    options.usesShortNames = defaults.boolForKey(preference::useShortArticleNames);
    options.hasPreviews = defaults.boolForKey(preference::allowFeedArticlePreview);
    options.unreadStyle = shared({defaults.boolForKey(preference::allowBoldTextForUnreadArticles),
        color(defaults, preference::allowCustomColorForUnreadArticles, preference::customColorForUnreadArticles)});
    options.readStyle =
        shared({false, color(defaults, preference::allowCustomColorForReadArticles, preference::customColorForReadArticles)});
    return options;
}

} // namespace brindle
