#include "desktop/windows/BrowserWindow.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/ListKeys.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

namespace brindle::desktop {

namespace {

using Articles = FeedsBrowserFeedArticlesViewController;

// In points.
constexpr QSize firstSize(1120, 720);
constexpr QSize smallestSize(640, 360);
constexpr int feedsWidth = 230;
constexpr int articlesWidth = 330;
constexpr int narrowestList = 140;
constexpr int narrowestArticle = 260;
constexpr int iconColumn = 28;

std::vector<QtTableView::Column> articleColumns() {
    return {{std::string(Articles::sourceColumn), iconColumn}, {std::string(Articles::statusColumn), iconColumn},
        {std::string(Articles::nameColumn), 0}};
}

QFrame* makeLine(QWidget* parent) {
    auto* const line = new QFrame(parent);
    line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Plain));
    line->setForegroundRole(QPalette::Mid);
    line->setFixedHeight(1);
    return line;
}

} // namespace

BrowserWindow::BrowserWindow(WindowEnvironment environment, const std::shared_ptr<WebPluginLoader>& webPlugin)
    : QtWindow(environment), _defaults(environment.defaults), _splitter(new QSplitter(&widget())),
      _feedsView(std::make_shared<QtOutlineView>(_splitter, toQString(localized("Feeds")))),
      _articlesView(std::make_shared<QtTableView>(_splitter, toQString(localized("Articles")), articleColumns())),
      _articlePane(new ArticlePane(webPlugin, _splitter)) {
    setStyleMask(titled | closable | miniaturizable | resizable);
    widget().setMinimumSize(smallestSize);
    widget().resize(firstSize);
    for (QWidget* const list : std::initializer_list<QWidget*>{&_feedsView->widget(), &_articlesView->widget()})
        list->setMinimumWidth(narrowestList);
    _articlePane->setMinimumWidth(narrowestArticle);
    _splitter->setHandleWidth(1);
    _splitter->setStretchFactor(2, 1);
    _splitter->setSizes({feedsWidth, articlesWidth, firstSize.width() - feedsWidth - articlesWidth});
}

void BrowserWindow::bind(
    FeedsBrowserWindowController& controller, const FeedsBrowserEnvironment& environment, const std::shared_ptr<StatusMenu>& statusMenu) {
    auto* const content = new QWidget(&widget());
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    _toolbar = new BrowserToolbar(controller, statusMenu, environment.responderChain, content);
    column->addWidget(_toolbar);
    column->addWidget(makeLine(content));
    column->addWidget(_splitter, 1);
    widget().setCentralWidget(content);
    _splitSizes = std::make_unique<SplitSizes>(_splitter, _defaults, std::string(FeedsBrowserWindowController::frameAutosaveName));

    FeedsBrowserSplitViewController& panes = controller.splitViewController();
    setHandlers(panes.responders());
    _chain->setHandlers(panes.responders());
    _chain->setNext(environment.responderChain);
    bindPanes(panes);
    _navigator = std::make_unique<ArticleNavigator>(environment.feedsManager, panes, *_articlesView, *_articlePane->container());
    addListKeys(panes);
    addShortcuts();
    // The row of tools first, then from the left to the right.
    QWidget::setTabOrder(&_toolbar->searchField(), &_feedsView->widget());
    QWidget::setTabOrder(&_feedsView->widget(), &_articlesView->widget());
    _feedsView->widget().setFocus();
}

void BrowserWindow::bindPanes(FeedsBrowserSplitViewController& panes) {
    _splitter->setChildrenCollapsible(panes.canCollapse);
    for (std::size_t i = 0; i < panes.splitViewItems.size(); ++i) {
        const SplitViewItem& item = panes.splitViewItems[i];
        QWidget* const pane = _splitter->widget(static_cast<int>(i));
        _tokens.push_back(panes.splitViewItems[i].observe([&item, pane] { pane->setVisible(!item.isCollapsed()); }));
    }
    FeedsBrowserFeedsViewController& feeds = panes.feedsViewController();
    _feedsView->onDoubleAction = [&feeds] { feeds.editFeed(); };
    _feedMenu = std::make_shared<FeedMenu>([&feeds] { feeds.editFeed(); }, [&feeds](const auto& feed) { feeds.removeFeed(feed); });
    _feedsView->widget().onMenu = [this](const QModelIndex& row, const QPoint& place) {
        showFeedMenu(_feedsView->widget().outline().item(row), place);
    };
    _articlesView->setEmptyText([this] {
        const bool isChosen = !_feedsView->selectedRows().empty() || !_toolbar->searchField().text().isEmpty();
        return isChosen ? toQString(localized("noArticlesMenuItem")) : QString();
    });
    FeedsBrowserArticleViewController& article = panes.articleViewController();
    QObject::connect(
        &_articlesView->widget(), &QTableView::doubleClicked, &_articlesView->widget(), [&article] { article.openInWebBrowser(); });
    _articlePane->bind(article);
}

void BrowserWindow::showFeedMenu(const OutlineItem& item, const QPoint& place) {
    const auto feed = std::dynamic_pointer_cast<Feed>(item);
    const auto menu = feed ? _feedMenu->make(feed) : nullptr;
    if (!menu)
        return;
    auto* const shown = new MenuView(menu, _chain, &widget());
    shown->setAttribute(Qt::WA_DeleteOnClose);
    shown->popup(place);
}

void BrowserWindow::addShortcut(const QKeySequence& keys, const std::function<void()>& handler) {
    auto* const shortcut = new QShortcut(keys, &widget());
    QObject::connect(shortcut, &QShortcut::activated, shortcut, handler);
}

void BrowserWindow::addListKeys(FeedsBrowserSplitViewController& panes) {
    const ListKeys::Handlers paging = {[this] { _navigator->pageDown(); }, [this] { _navigator->pageUp(); }, {}, {}};
    ListKeys::Handlers inFeeds = paging;
    inFeeds.deleteKey = [&feeds = panes.feedsViewController()] {
        if (feeds.validateUserInterfaceItem(browseractions::deleteFeed))
            feeds.deleteFeed();
    };
    ListKeys::Handlers inArticles = paging;
    inArticles.returnKey = [this, &article = panes.articleViewController()] {
        // Without a selection, the pane may still show an article that isn't listed any more.
        if (_articlesView->selectedRow())
            article.openInWebBrowser();
    };
    new ListKeys(&_feedsView->widget(), inFeeds);
    new ListKeys(&_articlesView->widget(), inArticles);
}

void BrowserWindow::addShortcuts() {
    const auto send = [chain = _chain](std::string_view action) { return [chain, action] { chain->perform(Action{action}); }; };
    addShortcut(QKeySequence::New, send(browseractions::newFeed));
    addShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_N, send(browseractions::newGroup));
    addShortcut(Qt::CTRL | Qt::Key_Comma, send(actions::showPreferences));
    addShortcut(Qt::CTRL | Qt::Key_Q, send(actions::handleQuit));
    addShortcut(Qt::Key_F5, send(actions::handleUpdateAll));
    addShortcut(Qt::Key_N, [this] { _navigator->showNextUnread(); });
    addShortcut(QKeySequence::Find, [this] { _toolbar->startSearch(); });
    addShortcut(Qt::CTRL | Qt::Key_W, [this] { close(); });
    // The keys of the search field come to it first, and these two are none of a field's own.
    const auto leaveSearch = [this] {
        if (_toolbar->searchField().hasFocus())
            _articlesView->widget().setFocus(Qt::OtherFocusReason);
    };
    addShortcut(Qt::Key_Escape, [this, leaveSearch] {
        leaveSearch();
        _toolbar->endSearch();
    });
    // Whatever a search lists, no article is shown yet.
    QObject::connect(&_toolbar->searchField(), &QLineEdit::textEdited, _toolbar, [this] { _articlesView->deselectAll(); });
    QObject::connect(&_toolbar->searchField(), &QLineEdit::returnPressed, _toolbar, leaveSearch);
}

} // namespace brindle::desktop
