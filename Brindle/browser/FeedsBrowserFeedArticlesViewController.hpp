#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/NotificationCenter.hpp"
#include "platform/TableView.hpp"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace brindle {

/// The list of articles in the middle of the browser. Thread: main.
class FeedsBrowserFeedArticlesViewController : public TableViewDataSource,
                                               public std::enable_shared_from_this<FeedsBrowserFeedArticlesViewController> {
public:
    using Articles = std::vector<std::shared_ptr<FeedItemArticle>>;

    static constexpr std::string_view sourceColumn = "sourceColumn";
    static constexpr std::string_view statusColumn = "statusColumn";
    static constexpr std::string_view nameColumn = "nameColumn";

    static std::shared_ptr<FeedsBrowserFeedArticlesViewController> make(FeedsBrowserEnvironment environment);

    std::weak_ptr<TableView> articlesTableView;

    const Articles& feedItemArticles() const { return _feedItemArticles; }
    /// Whether the list is a collection's, which comes from many feeds.
    bool isCollection() const { return _isCollection; }

    void viewDidLoad();
    void viewDidAppear();
    void reloadArticles();

    /// Lists all articles of an entry of the tree; null empties the list.
    void showFeed(const std::shared_ptr<Feed>& feed);
    void showCollection(Articles articles);
    /// Lists what a search found.
    void showMatches(Articles articles);

    std::size_t numberOfRows() const override { return _feedItemArticles.size(); }
    std::shared_ptr<TableCellView> viewFor(std::string_view column, std::size_t row) const override;
    double heightOfRow(std::size_t row) const override;
    bool shouldSelectRow(std::size_t) const override { return true; }
    void tableViewSelectionDidChange() override;

private:
    explicit FeedsBrowserFeedArticlesViewController(FeedsBrowserEnvironment environment);

    void setArticles(Articles articles, std::weak_ptr<Feed> feed);
    void setIsCollection(bool isCollection);
    void hideOrShowSourceColumn();
    void didUpdateFeed(const std::shared_ptr<Object>& subject);
    void updateList(Articles articles);
    void refreshSavedMarks();
    void reloadRowOf(const FeedItemArticle& article);
    void markRead(std::size_t row);
    std::shared_ptr<TableCellView> sourceCell(const FeedItemArticle& article) const;
    std::shared_ptr<TableCellView> statusCell(const FeedItemArticle& article) const;
    std::shared_ptr<TableCellView> nameCell(const std::shared_ptr<FeedItemArticle>& article) const;

    const FeedsBrowserEnvironment _environment;
    Articles _feedItemArticles;
    std::vector<bool> _shownAsRead; ///< the state of each row when it was last loaded
    std::weak_ptr<Feed> _feed;      ///< whose articles are listed; none for other lists
    bool _isCollection = false;
    std::vector<NotificationCenter::Token> _tokens;
};

} // namespace brindle
