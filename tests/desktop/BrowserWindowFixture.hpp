#pragma once

#include "desktop/windows/FeedsBrowserWindow.hpp"
#include "tests/browser/BrowserFixture.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/support/Folders.hpp"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The browser's window over a library in memory, without a web view: articles are shown as text.
class BrowserWindowTest : public BrowserTest {
protected:
    BrowserWindowTest() { environment.resources = testsupport::sourceFolder() + "/resources"; }

    /// Makes it of what the library and the preferences are by then, and shows it with the keyboard.
    void show() { show(std::make_shared<WebPluginLoader>(folder / "none.so")); }
    void show(const std::shared_ptr<WebPluginLoader>& loader) {
        made = makeFeedsBrowserWindow(windows, loader, statusMenu, environment);
        made.controller->showWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&made.window->widget()));
    }

    OutlineTree& feeds() const { return made.window->feedsView()->widget(); }
    QTableView& articles() const { return made.window->articlesView()->widget(); }
    QLineEdit& searchField() const { return made.window->toolbar().searchField(); }
    FeedsBrowserArticleViewController& article() const { return made.controller->splitViewController().articleViewController(); }

    /// Of the window, by its name for a screen reader; a failure where there is none.
    template <typename Button = QAbstractButton>
    Button& button(const std::string& name) const {
        for (Button* const each : made.window->widget().findChildren<Button*>()) {
            if (each->accessibleName().toStdString() == name || each->text().toStdString() == name)
                return *each;
        }
        throw std::runtime_error("no button " + name);
    }
    /// The items of a button's menu, as it opens.
    static std::vector<std::string> menuTexts(const QToolButton& button) {
        emit button.menu()->aboutToShow();
        std::vector<std::string> texts;
        for (const QAction* const action : button.menu()->actions())
            texts.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        return texts;
    }

    void setCollectionsOff() {
        for (const std::string_view key : {preference::showTodayCollectionInFeedsBrowser, preference::showUnreadCollectionInFeedsBrowser,
                 preference::showSavedArticlesCollectionInFeedsBrowser})
            set(key, false);
    }
    void select(const std::shared_ptr<Feed>& feed) const { made.controller->splitViewController().feedsViewController().reveal(feed); }
    /// Of the article that is shown; empty for none.
    std::string shownTitle() const { return article().article() ? article().article()->entry->title : ""; }
    std::vector<std::string> listedTitles() const {
        return titles(made.controller->splitViewController().articlesViewController().feedItemArticles());
    }
    /// The names of the rows of the outline that are shown, in order.
    std::vector<std::string> feedRows() const {
        std::vector<std::string> rows;
        for (QModelIndex row = feeds().model()->index(0, 0); row.isValid(); row = feeds().indexBelow(row))
            rows.push_back(row.data().toString().toStdString());
        return rows;
    }
    QRect rectOf(const std::shared_ptr<Feed>& feed) const { return feeds().visualRect(feeds().outline().indexOf(feed)); }
    /// Of the row with that name.
    QRect rectOf(const char* name) const {
        for (QModelIndex row = feeds().model()->index(0, 0); row.isValid(); row = feeds().indexBelow(row)) {
            if (row.data().toString() == QLatin1String(name))
                return feeds().visualRect(row);
        }
        return {};
    }
    /// What a drop of `dragged` at a point of the feeds comes to: the name of the row and the index; empty where none is allowed.
    std::string drop(const std::shared_ptr<Feed>& dragged, const QPoint& point) const {
        FeedsOutlineViewDataController& source =
            *made.controller->splitViewController().feedsViewController().feedsOutlineViewDataController;
        source.draggingSessionWillBegin({dragged});
        const auto found = feeds().dropAt(point, Pasteboard{{*source.pasteboardWriter(dragged)}});
        source.draggingSessionEnded();
        const QString row = found ? feeds().outline().indexOf(found->item).data().toString() : QString();
        return found ? row.toStdString() + " " + std::to_string(found->index) : "";
    }
    std::string selectedFeedRow() const {
        const auto selected = feeds().selectionModel()->selectedRows();
        return selected.isEmpty() ? "" : selected.front().data().toString().toStdString();
    }

    WindowEnvironment windows = {defaults, {}};
    std::shared_ptr<StatusMenu> statusMenu = std::make_shared<StatusMenu>();
    FeedsBrowserWindow made;
};

} // namespace brindle::desktop
