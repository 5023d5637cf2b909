#pragma once

#include "Brindle/browser/FeedsBrowserEnvironment.hpp"
#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "desktop/toolkit/StatusMenu.hpp"
#include "desktop/windows/ArticleNavigator.hpp"
#include "desktop/windows/ArticlePane.hpp"
#include "desktop/windows/BrowserToolbar.hpp"
#include "desktop/windows/FeedMenu.hpp"
#include "desktop/windows/QtOutlineView.hpp"
#include "desktop/windows/QtTableView.hpp"
#include "desktop/windows/QtWindow.hpp"
#include "desktop/windows/SplitSizes.hpp"
#include "desktop/windows/WebPluginLoader.hpp"
#include "platform/ResponderChain.hpp"

#include <QPointer>
#include <QSplitter>
#include <functional>
#include <memory>
#include <vector>

class QKeySequence;

namespace brindle::desktop {

/// The window of the feeds browser: a row of tools above the feeds, the articles and the article. Thread: main.
///
/// By keyboard: Tab goes from pane to pane, the arrows through a list. Space pages the article and goes on to the next unread one, N goes
/// there at once. Return edits a feed and opens an article in the web browser, Delete removes a feed, Ctrl+F searches, Escape ends that.
class BrowserWindow : public QtWindow {
public:
    BrowserWindow(WindowEnvironment environment, const std::shared_ptr<WebPluginLoader>& webPlugin);

    // What the controllers of the panes show themselves by.
    const std::shared_ptr<QtOutlineView>& feedsView() const { return _feedsView; }
    const std::shared_ptr<QtTableView>& articlesView() const { return _articlesView; }
    ArticlePane& articlePane() const { return *_articlePane; }

    /// Shows a controller and its panes', which outlive a person's use of the window. What a key or a menu of the window sends goes to the
    /// panes first, then along the environment's responder chain.
    void bind(FeedsBrowserWindowController& controller, const FeedsBrowserEnvironment& environment,
        const std::shared_ptr<StatusMenu>& statusMenu);

    BrowserToolbar& toolbar() const { return *_toolbar; }
    QSplitter& splitter() const { return *_splitter; }

private:
    void bindPanes(FeedsBrowserSplitViewController& panes);
    void addListKeys(FeedsBrowserSplitViewController& panes);
    void addShortcuts();
    void showFeedMenu(const OutlineItem& item, const QPoint& place);
    void addShortcut(const QKeySequence& keys, const std::function<void()>& handler);

    const std::shared_ptr<UserDefaults> _defaults;
    const std::shared_ptr<ResponderChain> _chain = std::make_shared<ResponderChain>();
    const QPointer<QSplitter> _splitter;
    const std::shared_ptr<QtOutlineView> _feedsView;
    const std::shared_ptr<QtTableView> _articlesView;
    const QPointer<ArticlePane> _articlePane;
    QPointer<BrowserToolbar> _toolbar;
    std::shared_ptr<FeedMenu> _feedMenu;
    std::unique_ptr<SplitSizes> _splitSizes;
    std::unique_ptr<ArticleNavigator> _navigator;
    std::vector<Control::Token> _tokens;
};

} // namespace brindle::desktop
