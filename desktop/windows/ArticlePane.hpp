#pragma once

#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"
#include "desktop/windows/ArticleContainer.hpp"

#include <QWidget>
#include <memory>

namespace brindle::desktop {

/// An article below a row of buttons about it. Thread: main.
class ArticlePane : public QWidget {
public:
    ArticlePane(std::shared_ptr<WebPluginLoader> loader, QWidget* parent);

    const std::shared_ptr<ArticleContainer>& container() const { return _container; }
    /// Shows what a controller has, which outlives a person's use of the pane.
    void bind(FeedsBrowserArticleViewController& controller);

private:
    const std::shared_ptr<ArticleContainer> _container;
};

} // namespace brindle::desktop
