#include "Brindle/browser/ArticlePreviewViewController.hpp"

#include "Brindle/library/PreferenceKeys.hpp"

#include <string>

namespace brindle {

void ArticlePreviewViewController::load() {
    const auto content = feedItemArticle ? feedItemArticle->entry->content() : nullptr;
    if (content) {
        textView.setString(content->strippedContent());
        textView.setRichText(true);
        textView.setUsesTextColor(true);
    } else {
        textView.setString({});
    }
    setFont();
}

void ArticlePreviewViewController::setFont() {
    if (!_defaults->boolForKey(preference::useCustomFontSizeForPreview))
        return textView.setFont(_systemFont);
    textView.setFont({textView.font().name, _defaults->doubleForKey(preference::customFontSizeForPreview)});
}

} // namespace brindle
