#include "tests/desktop/BrowserWindowFixture.hpp"

#include "desktop/toolkit/MenuView.hpp"
#include "tests/desktop/WebEngine.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QSplitter>
#include <QToolButton>
#include <algorithm>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(BrowserWindowTest, ShowsTheSectionsAndTheFeeds) {
    add(makeItem("Alpha"));
    add(makeItem("Beta"));
    show();
    EXPECT_THAT(feedRows(), ElementsAre("Collections", "Today", "Unread Articles", "Saved Articles", "Feeds", "Alpha", "Beta"));
}

TEST_F(BrowserWindowTest, ArrowsGoThroughTheFeedsPastTheHeaders) {
    setCollectionsOff();
    add(makeItem("Alpha", {"a"}));
    add(makeItem("Beta", {"b"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_Down);
    EXPECT_EQ(selectedFeedRow(), "Alpha");
    QTest::keyClick(&feeds(), Qt::Key_Down);
    EXPECT_EQ(selectedFeedRow(), "Beta");
    EXPECT_THAT(listedTitles(), ElementsAre("b"));
    QTest::keyClick(&feeds(), Qt::Key_Up);
    EXPECT_EQ(selectedFeedRow(), "Alpha");
}

TEST_F(BrowserWindowTest, AnArticleThatIsSelectedIsShownAndRead) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    articles().setFocus();
    QTest::keyClick(&articles(), Qt::Key_Down);
    EXPECT_EQ(shownTitle(), "one");
    EXPECT_TRUE(item->articles().front()->entry->isRead());
    EXPECT_FALSE(item->articles().back()->entry->isRead());
}

TEST_F(BrowserWindowTest, ReturnOpensTheArticleInTheWebBrowser) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    QTest::keyClick(&articles(), Qt::Key_Down);
    takeCalls();
    QTest::keyClick(&articles(), Qt::Key_Return);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/one"));
}

TEST_F(BrowserWindowTest, ReturnEditsTheFeed) {
    const auto item = add(makeItem("Alpha"));
    show();
    select(item);
    takeCalls();
    QTest::keyClick(&feeds(), Qt::Key_Return);
    EXPECT_THAT(takeCalls(), ElementsAre("editFeedItem Alpha"));
}

TEST_F(BrowserWindowTest, DeleteAsksAndRemovesTheFeed) {
    const auto item = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    show();
    select(item);
    QTest::keyClick(&feeds(), Qt::Key_Delete);
    ASSERT_EQ(alerts->alerts.size(), 1U);
    EXPECT_THAT(names(manager->feeds), ElementsAre("Beta"));
    EXPECT_THAT(feedRows(), ElementsAre("Collections", "Today", "Unread Articles", "Saved Articles", "Feeds", "Beta"));
    EXPECT_EQ(selectedFeedRow(), "");
}

TEST_F(BrowserWindowTest, TheMenuKeyOffersWhatCanBeDoneWithTheFeed) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&feeds(), &event);
    const auto* const menu = made.window->widget().findChild<MenuView*>();
    ASSERT_TRUE(menu);
    std::vector<std::string> texts;
    for (const QAction* action : menu->actions())
        texts.push_back(action->text().toStdString());
    EXPECT_THAT(
        texts, ElementsAre("markAllReadMenuTitle", "markAllUnreadMenuTitle", "openAllUnreadMenuTitle", "", "Edit Feed", "Remove Feed"));
    takeCalls();
    menu->actions()[4]->trigger();
    EXPECT_THAT(takeCalls(), ElementsAre("editFeedItem Alpha"));
    application->log.clear();
    menu->actions()[0]->trigger();
    ASSERT_THAT(application->log, ElementsAre("markArticlesAsRead:"));
    EXPECT_EQ(application->senders.back()->representedObject(), item);
}

TEST_F(BrowserWindowTest, TheMenuOfASeparatorRemovesIt) {
    add(makeItem("Alpha"));
    const auto separator = add(FeedSeparator::make());
    show();
    feeds().setCurrentIndex(feeds().outline().indexOf(separator));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&feeds(), &event);
    const auto* const menu = made.window->widget().findChild<MenuView*>();
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().front()->text(), "Remove Separator");
    menu->actions().front()->trigger();
    EXPECT_THAT(names(manager->feeds), ElementsAre("Alpha"));
    EXPECT_THAT(feedRows(), ElementsAre("Collections", "Today", "Unread Articles", "Saved Articles", "Feeds", "Alpha"));
}

TEST_F(BrowserWindowTest, ALongNameIsShownByItsBeginning) {
    add(makeItem(std::string(1'000'000, 'x')));
    show();
    EXPECT_EQ(feedRows().back(), std::string(1000, 'x') + "\u2026");
}

TEST_F(BrowserWindowTest, AFeedIsRevealedWhereTheFeedsAreClosed) {
    const auto item = add(makeItem("Alpha"));
    show();
    const QModelIndex header = feeds().outline().indexOf(item).parent();
    feeds().collapse(header);
    select(item);
    EXPECT_TRUE(feeds().isExpanded(header));
    EXPECT_EQ(selectedFeedRow(), "Alpha");
}

TEST_F(BrowserWindowTest, DeleteWithoutASelectedFeedDoesNothing) {
    add(makeItem("Alpha"));
    show();
    QTest::keyClick(&feeds(), Qt::Key_Delete);
    EXPECT_THAT(alerts->alerts, IsEmpty());
}

TEST_F(BrowserWindowTest, NGoesToTheNextUnreadArticleBelowThenFromTheTop) {
    const auto item = add(makeItem("Alpha", {"one", "two", "three"}));
    item->articles()[1]->entry->setState(SyndicatedEntry::State::read);
    show();
    select(item);
    made.window->articlesView()->selectRow(1);
    QTest::keyClick(&articles(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "three");
    QTest::keyClick(&feeds(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "one");
}

TEST_F(BrowserWindowTest, NGoesOnToTheNextFeedWithUnreadArticles) {
    const auto first = add(makeItem("Alpha", {"one"}));
    add(makeItem("Empty"));
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner", {"inner"}), group);
    show();
    select(first);
    QTest::keyClick(&feeds(), Qt::Key_N);
    QTest::keyClick(&feeds(), Qt::Key_N);
    EXPECT_EQ(selectedFeedRow(), "Inner");
    EXPECT_THAT(listedTitles(), ElementsAre("inner"));
    EXPECT_EQ(shownTitle(), "inner");
}

TEST_F(BrowserWindowTest, SpaceAtTheEndOfAnArticleGoesToTheNextUnreadOne) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    QTest::keyClick(&articles(), Qt::Key_Space);
    EXPECT_EQ(shownTitle(), "one");
    QTest::keyClick(&articles(), Qt::Key_Space);
    EXPECT_EQ(shownTitle(), "two");
}

TEST_F(BrowserWindowTest, SpacesPassOverNoArticleWhosePageIsStillToCome) {
    const auto item = add(makeItem("Alpha", {"one", "two", "three"}));
    show(WebEngine::start());
    select(item);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&articles(), Qt::Key_Space);
    bool hasAnswered = false;
    made.window->articlePane().container()->shown()->scrollPage(false, [&](bool) { hasAnswered = true; });
    ASSERT_TRUE(runEventLoop([&] { return hasAnswered; }));
    EXPECT_EQ(shownTitle(), "one");
    EXPECT_FALSE(item->articles()[1]->entry->isRead());
}

TEST_F(BrowserWindowTest, SpaceThatIsHeldDownGoesToOneArticleAlone) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    QTest::keyPress(&articles(), Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QApplication::sendEvent(&articles(), &repeated);
    }
    EXPECT_EQ(shownTitle(), "one");
}

TEST_F(BrowserWindowTest, WhoReadsInTheArticleGoesOnReadingInTheNextOne) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    made.window->articlesView()->selectRow(0);
    made.window->articlePane().container()->shown()->textBrowser()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "two");
    EXPECT_EQ(QApplication::focusWidget(), made.window->articlePane().container()->shown()->textBrowser());
}

TEST_F(BrowserWindowTest, TabGoesFromTheFeedsToTheArticles) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_Tab);
    EXPECT_TRUE(articles().hasFocus());
    QTest::keyClick(&articles(), Qt::Key_Backtab);
    EXPECT_TRUE(feeds().hasFocus());
}

TEST_F(BrowserWindowTest, WhatIsTypedIntoTheSearchFieldIsSearchedAndHidesTheFeeds) {
    add(makeItem("Alpha", {"needle one", "hay"}));
    add(makeItem("Beta", {"Needle two"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(searchField().hasFocus());
    QTest::keyClicks(&searchField(), "needle");
    EXPECT_THAT(listedTitles(), ElementsAre("needle one", "Needle two"));
    EXPECT_FALSE(feeds().isVisible());
}

TEST_F(BrowserWindowTest, EscapeEndsTheSearch) {
    add(makeItem("Alpha", {"needle"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&searchField(), "needle");
    QTest::keyClick(&searchField(), Qt::Key_Escape);
    EXPECT_EQ(made.controller->searchField.stringValue(), "");
    EXPECT_TRUE(feeds().isVisible());
    EXPECT_TRUE(articles().hasFocus());
}

TEST_F(BrowserWindowTest, ASearchLeavesNothingSelected) {
    const auto item = add(makeItem("Alpha", {"needle"}));
    show();
    select(item);
    made.window->articlesView()->selectRow(0);
    searchField().setFocus();
    QTest::keyClicks(&searchField(), "n");
    EXPECT_EQ(shownTitle(), "");
    QTest::keyClick(&searchField(), Qt::Key_Return);
    QTest::keyClick(&articles(), Qt::Key_Down);
    EXPECT_EQ(shownTitle(), "needle");
}

TEST_F(BrowserWindowTest, ReturnInTheSearchFieldGoesToWhatWasFound) {
    add(makeItem("Alpha", {"needle"}));
    show();
    searchField().setFocus();
    QTest::keyClicks(&searchField(), "needle");
    QTest::keyClick(&searchField(), Qt::Key_Return);
    EXPECT_TRUE(articles().hasFocus());
    EXPECT_THAT(listedTitles(), ElementsAre("needle"));
}

TEST_F(BrowserWindowTest, ALetterThatIsTypedIntoTheSearchFieldIsNoCommand) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    searchField().setFocus();
    QTest::keyClick(&searchField(), Qt::Key_N);
    EXPECT_EQ(searchField().text(), "n");
    EXPECT_EQ(shownTitle(), "");
}

TEST_F(BrowserWindowTest, KeysSendTheActionsOfTheApplication) {
    show();
    application->log.clear();
    QTest::keyClick(&feeds(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(&feeds(), Qt::Key_Comma, Qt::ControlModifier);
    QTest::keyClick(&feeds(), Qt::Key_F5);
    QTest::keyClick(&feeds(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(application->log, ElementsAre("newFeed:", "showPreferences:", "handleUpdateAll:", "handleQuit:"));
}

TEST_F(BrowserWindowTest, ControlWClosesTheWindowAndAnotherShowBringsItBack) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(made.controller->isWindowVisible());
    made.controller->showWindow();
    EXPECT_TRUE(made.controller->isWindowVisible());
}

TEST_F(BrowserWindowTest, PanesReachEachOtherWhileAnotherWindowHasTheKeyboard) {
    const auto item = add(makeItem("Alpha", {"one"}));
    made = makeFeedsBrowserWindow(windows, std::make_shared<WebPluginLoader>(folder / "none.so"), statusMenu, environment);
    made.controller->selectedFeed = item;
    made.controller->showWindow();
    EXPECT_THAT(listedTitles(), ElementsAre("one"));
    EXPECT_THAT(application->log, IsEmpty());
}

TEST_F(BrowserWindowTest, TheRemoveButtonFollowsTheSelection) {
    const auto item = add(makeItem("Alpha"));
    show();
    const auto buttons = made.window->toolbar().findChildren<QToolButton*>();
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [](const auto* each) { return each->accessibleName() == "Remove Feed"; });
    ASSERT_NE(found, buttons.end());
    QToolButton* const remove = *found;
    EXPECT_FALSE(remove->isEnabled());
    select(item);
    EXPECT_TRUE(remove->isEnabled());
    remove->click();
    EXPECT_THAT(manager->feeds, IsEmpty());
    EXPECT_FALSE(remove->isEnabled());
}

TEST_F(BrowserWindowTest, TheStatusMenuIsShownOnlyWhereTheDesktopHasNoPlaceForIt) {
    show();
    auto* const button = made.window->toolbar().findChildren<QToolButton*>().front();
    EXPECT_FALSE(button->isVisible());
    const auto menu = std::make_shared<Menu>();
    statusMenu->setMenu(menu);
    statusMenu->setHidden(false);
    EXPECT_TRUE(button->isVisible());
    ASSERT_TRUE(button->menu());
    EXPECT_EQ(static_cast<MenuView*>(button->menu())->menu(), menu);
}

TEST_F(BrowserWindowTest, TheWidthsOfThePanesComeBack) {
    show();
    made.window->splitter().setSizes({300, 300, 500});
    emit made.window->splitter().splitterMoved(300, 1);
    const QList<int> sizes = made.window->splitter().sizes();
    made = {};
    show();
    EXPECT_EQ(made.window->splitter().sizes(), sizes);
}

TEST_F(BrowserWindowTest, TheWidthsThatArePulledDuringASearchComeBack) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&searchField(), "needle");
    ASSERT_FALSE(feeds().isVisible());
    QSplitter& splitter = made.window->splitter();
    splitter.setSizes({0, 500, 400});
    emit splitter.splitterMoved(500, 2);
    const int articlesWidth = splitter.sizes()[1];
    made = {};
    const std::string key = "NSSplitView Subview Frames " + std::string(FeedsBrowserWindowController::frameAutosaveName);
    const QStringList widths = QString::fromStdString(defaults->stringForKey(key).value_or("")).split(QLatin1Char(' '));
    ASSERT_EQ(widths.size(), 3);
    EXPECT_GT(widths[0].toInt(), 0);
    EXPECT_EQ(widths[1].toInt(), articlesWidth);
}

TEST_F(BrowserWindowTest, EveryControlHasANameForAScreenReader) {
    show();
    for (const QWidget* widget : made.window->widget().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty())) << widget->metaObject()->className();
    }
}

} // namespace

} // namespace brindle::desktop
