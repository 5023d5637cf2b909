#pragma once

#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/menu/MenuItemRepresentation.hpp"
#include "Brindle/menu/MenuRebuild.hpp"

#include <memory>
#include <vector>

namespace brindle {

/// The items of a list of articles, of a feed or of a collection. Each item may have a preview below it: a submenu of one item whose view
/// is made when that submenu opens and dropped when it closes. Must be held by a shared pointer for as long as its items are shown.
///
/// A library has tens of thousands of articles, and few menus are ever looked into: the items are made when somebody does, of what was true
/// at the time of `configure`. Thread: main.
class FeedItemArticlesMenuItemRepresentation : public MenuItemRepresentation,
                                               public MenuDelegate,
                                               public MenuItemSource,
                                               public SubmenuSource,
                                               public std::enable_shared_from_this<FeedItemArticlesMenuItemRepresentation> {
public:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

    FeedItemArticlesMenuItemRepresentation(Articles list, bool isOfCollection, std::shared_ptr<MenuRebuild> rebuild);

    const Articles articles;
    const bool isCollection;

    /// Leaves everything as it was made where there are no articles.
    void configure() override;
    void appendItems(Menu& menu) override;

    /// The preview that is open; null while none is.
    const std::shared_ptr<ArticlePreviewController>& currentFeedBrowserArticleViewController() const { return _currentPreview; }

    void menuWillOpen(Menu& menu) override;
    void menuDidClose(Menu& menu) override;
    std::shared_ptr<Menu> makeSubmenu(const MenuItem& item) override;

private:
    /// What an article's item shows and may be another later.
    struct Look {
        bool isRead = false;
        const Image* feedImage = nullptr; ///< of the rebuild
    };

    void appendArticleItem(const std::shared_ptr<FeedItemArticle>& article, const Look& look, Menu& menu);

    std::shared_ptr<MenuRebuild> _rebuild;
    std::vector<Look> _looks; ///< of each article, at the time of `configure`
    std::shared_ptr<ArticlePreviewController> _currentPreview;
};

} // namespace brindle
