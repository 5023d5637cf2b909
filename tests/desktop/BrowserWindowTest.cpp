#include "tests/desktop/BrowserWindowFixture.hpp"

#include "desktop/toolkit/MenuView.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QSplitter>
#include <QToolButton>

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
    QToolButton& remove = button<QToolButton>("Remove Feed");
    EXPECT_FALSE(remove.isEnabled());
    select(item);
    EXPECT_TRUE(remove.isEnabled());
    remove.click();
    EXPECT_THAT(manager->feeds, IsEmpty());
    EXPECT_THAT(alerts->alerts, IsEmpty());
    EXPECT_FALSE(remove.isEnabled());
}

TEST_F(BrowserWindowTest, TheAddButtonOffersWhatCanBeAddedThenImportAndExport) {
    show();
    QToolButton& add = button<QToolButton>("Add");
    EXPECT_THAT(menuTexts(add), ElementsAre("Add Feed", "Add Group", "Add Separator", "-", "Import Feeds...", "Export Feeds..."));
    application->log.clear();
    for (QAction* const action : add.menu()->actions())
        action->trigger();
    EXPECT_THAT(application->log, ElementsAre("newFeed:", "newGroup:", "newSeparator:", "importOPML:", "exportOPML:"));
}

TEST_F(BrowserWindowTest, AnEmptyListSaysSoOnceSomethingIsChosen) {
    const auto item = add(makeItem("Alpha"));
    show();
    const auto isBlank = [&] {
        const QImage picture = articles().viewport()->grab().toImage();
        QImage blank = picture;
        blank.fill(picture.pixelColor(0, 0));
        return picture == blank;
    };
    EXPECT_TRUE(isBlank());
    select(item);
    EXPECT_FALSE(isBlank());
}

TEST_F(BrowserWindowTest, ADoubleClickOnASeparatorDoesNothing) {
    const auto item = add(makeItem("Alpha"));
    const auto separator = add(FeedSeparator::make());
    show();
    takeCalls();
    QTest::mouseDClick(feeds().viewport(), Qt::LeftButton, {}, rectOf(separator).center());
    EXPECT_THAT(takeCalls(), IsEmpty());
    QTest::mouseDClick(feeds().viewport(), Qt::LeftButton, {}, rectOf(item).center());
    EXPECT_THAT(takeCalls(), ElementsAre("editFeedItem Alpha"));
}

TEST_F(BrowserWindowTest, ACollectionTakesNoDrop) {
    const auto item = add(makeItem("Alpha"));
    show();
    for (const char* const name : {"Collections", "Today", "Unread Articles", "Saved Articles"})
        EXPECT_EQ(drop(item, rectOf(name).center()), "") << name;
    EXPECT_EQ(drop(item, rectOf("Feeds").center()), "Feeds -1");
}

TEST_F(BrowserWindowTest, AGroupIsDroppedIntoNoneOfItsOwn) {
    const auto outer = add(FeedGroup::make("Outer"));
    const auto inner = add(FeedGroup::make("Inner"), outer);
    const auto innermost = add(FeedGroup::make("Innermost"), inner);
    const auto item = add(makeItem("Alpha"), innermost);
    show();
    select(item);
    for (const auto& group : {outer, inner, innermost})
        EXPECT_EQ(drop(outer, rectOf(group).center()), "") << group->name();
    EXPECT_EQ(drop(innermost, rectOf(outer).center()), "Outer -1");
}

TEST_F(BrowserWindowTest, ASeparatorIsDraggedLikeAFeed) {
    const auto separator = add(FeedSeparator::make());
    const auto item = add(makeItem("Alpha"));
    show();
    EXPECT_LT(rectOf(separator).height(), rectOf(item).height() / 2);
    EXPECT_EQ(drop(separator, rectOf(item).bottomLeft() + QPoint(20, -1)), "Feeds 2");
    EXPECT_EQ(drop(item, rectOf(separator).topLeft() + QPoint(20, 0)), "Feeds 0");
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

} // namespace

} // namespace brindle::desktop
