#pragma once

#include "Brindle/browser/FeedsBrowserSplitViewController.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "desktop/windows/ArticleContainer.hpp"
#include "desktop/windows/QtTableView.hpp"

#include <QObject>
#include <cstddef>
#include <memory>

namespace brindle::desktop {

/// Leads a reader through the browser's articles without the mouse. The panes outlive it. Thread: main.
class ArticleNavigator : public QObject {
public:
    ArticleNavigator(std::shared_ptr<const FeedsManager> feedsManager, const FeedsBrowserSplitViewController& panes, QtTableView& table,
        ArticleContainer& container);

    /// Selects the next unread article: below the selected one, else from the top of the list, else of the next feed that has one.
    void showNextUnread();
    /// Scrolls the article by a page; at its end goes on to the next unread one.
    void pageDown();
    void pageUp();

private:
    bool selectUnread(std::size_t from, std::size_t to);
    void showNextUnreadFeed();

    const std::shared_ptr<const FeedsManager> _feedsManager;
    const FeedsBrowserSplitViewController& _panes;
    QtTableView& _table;
    ArticleContainer& _container;
};

} // namespace brindle::desktop
