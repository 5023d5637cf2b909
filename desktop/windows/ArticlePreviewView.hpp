#pragma once

#include "Brindle/browser/ArticlePreviewViewController.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "desktop/toolkit/WidgetView.hpp"

#include <memory>

namespace brindle::desktop {

/// The text of an article in a menu: for reading, with the wheel to go on. Thread: main.
class ArticlePreviewView : public ArticlePreviewController {
public:
    ArticlePreviewView(std::shared_ptr<const UserDefaults> defaults, const std::shared_ptr<FeedItemArticle>& article);

    std::shared_ptr<View> view() override { return _view; }
    void fill() override;

private:
    ArticlePreviewViewController _controller;
    const std::shared_ptr<WidgetView> _view;
};

/// Makes previews on the desktop. Thread: main.
class QtArticlePreviewFactory : public ArticlePreviewFactory {
public:
    explicit QtArticlePreviewFactory(std::shared_ptr<const UserDefaults> defaults) : _defaults(std::move(defaults)) {}

    std::shared_ptr<ArticlePreviewController> makePreview(const std::shared_ptr<FeedItemArticle>& article) override {
        return std::make_shared<ArticlePreviewView>(_defaults, article);
    }

private:
    const std::shared_ptr<const UserDefaults> _defaults;
};

} // namespace brindle::desktop
