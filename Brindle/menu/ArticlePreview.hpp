#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "platform/View.hpp"

#include <memory>
#include <string>

namespace brindle {

/// Shows the text of one article in the menu below its item. Thread: main.
class ArticlePreviewController {
public:
    virtual ~ArticlePreviewController() = default;
    virtual std::shared_ptr<View> view() = 0;
    /// Puts the article's text, by `previewText`, into the view.
    virtual void fill() = 0;
};

/// Makes a controller for each preview that opens. Thread: main.
class ArticlePreviewFactory {
public:
    virtual ~ArticlePreviewFactory() = default;
    virtual std::shared_ptr<ArticlePreviewController> makePreview(const std::shared_ptr<FeedItemArticle>& article) = 0;
};

/// The content of an article without its tags; empty where it has none. UTF-8. Thread: main.
std::string previewText(const FeedItemArticle& article);

} // namespace brindle
