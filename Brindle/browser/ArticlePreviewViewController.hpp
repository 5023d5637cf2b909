#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/TextView.hpp"

#include <memory>
#include <utility>

namespace brindle {

/// The text of one article, small, below its item in the menu. Thread: main.
class ArticlePreviewViewController {
public:
    /// `systemFont` has the system's size.
    ArticlePreviewViewController(std::shared_ptr<const UserDefaults> defaults, Font systemFont)
        : _defaults(std::move(defaults)), _systemFont(std::move(systemFont)) {}

    TextView textView;
    std::shared_ptr<FeedItemArticle> feedItemArticle; ///< null: none

    /// Puts the article's text into the view, in the font that the preferences want.
    void load();

private:
    void setFont();

    const std::shared_ptr<const UserDefaults> _defaults;
    const Font _systemFont;
};

} // namespace brindle
