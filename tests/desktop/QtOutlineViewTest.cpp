#include "tests/desktop/QtOutlineViewFixture.hpp"
#include "tests/desktop/ToolTip.hpp"

#include <utility>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(QtOutlineViewTest, ShowsTheRowsOfExpandedItems) {
    add(makeItem("Alpha"));
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner"), group);
    show();
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Group"));
    view->expandItem(group);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Group", "Inner"));
}

TEST_F(QtOutlineViewTest, ShowsANameAsItIsInAToolTip) {
    const auto item = add(makeItem("<img src='file:///x'> & more"));
    show();
    const QString tip = tree().outline().indexOf(item).data(Qt::ToolTipRole).toString();
    EXPECT_EQ(readToolTip(tip), "<img src='file:///x'> & more");
}

TEST_F(QtOutlineViewTest, RevealsAFeedInClosedGroups) {
    const auto outer = add(FeedGroup::make("Outer"));
    const auto inner = add(FeedGroup::make("Inner"), outer);
    const auto item = add(makeItem("Deep"), inner);
    show();
    controller->reveal(item);
    EXPECT_THAT(selections, ElementsAre("Deep"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(3));
}

TEST_F(QtOutlineViewTest, GivesTheRowOfAnItemThatIsShownOnly) {
    const auto group = add(FeedGroup::make("Group"));
    const auto item = add(makeItem("Inner"), group);
    show();
    EXPECT_EQ(view->rowForItem(group), 1);
    EXPECT_EQ(view->rowForItem(item), std::nullopt);
    view->expandItem(group);
    EXPECT_EQ(view->rowForItem(item), 2);
    EXPECT_EQ(view->itemAtRow(9), nullptr);
}

TEST_F(QtOutlineViewTest, LeftClosesAGroupAndRightOpensIt) {
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner"), group);
    show();
    controller->reveal(group);
    QTest::keyClick(&tree(), Qt::Key_Right);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group", "Inner"));
    QTest::keyClick(&tree(), Qt::Key_Left);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group"));
}

TEST_F(QtOutlineViewTest, AHeaderIsNotSelectedByAClick) {
    const auto item = add(makeItem("Alpha"));
    show();
    controller->reveal(item);
    const QModelIndex header = tree().outline().index(0, 0);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(header).center());
    EXPECT_THAT(selections, ElementsAre("Alpha"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(1));
}

TEST_F(QtOutlineViewTest, TellsTheRowThatWasDoubleClicked) {
    const auto item = add(makeItem("Alpha"));
    show();
    std::vector<std::string> actions;
    view->onDoubleAction = [&] { actions.push_back(rowName(view->itemAtRow(view->clickedRow().value()))); };
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, rectOf(item).center());
    EXPECT_THAT(actions, ElementsAre("Alpha"));
}

TEST_F(QtOutlineViewTest, AFeedThatWasAddedHasARow) {
    add(makeItem("Alpha"));
    show();
    const auto added = add(makeItem("Beta"));
    notices::post(notices::didAddFeed, added);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Beta"));
}

TEST_F(QtOutlineViewTest, TheFirstFeedsOfAnEmptySectionHaveRows) {
    show();
    tree().viewport()->grab();
    for (const char* const name : {"Alpha", "Beta", "Gamma"}) {
        notices::post(notices::didAddFeed, add(makeItem(name)));
        tree().viewport()->grab();
    }
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Beta", "Gamma"));
}

TEST_F(QtOutlineViewTest, FeedsThatComeBeforeTheOutlineIsShownHaveRows) {
    controller->configure();
    controller->reload();
    notices::post(notices::didAddFeed, add(makeItem("Alpha")));
    notices::post(notices::didAddFeed, add(makeItem("Beta")));
    show();
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Beta"));
}

TEST_F(QtOutlineViewTest, AChangeThatNobodyToldOfIsSeenWithTheNextOne) {
    const auto item = add(makeItem("Alpha"));
    show();
    controller->reveal(item);
    add(makeItem("Silent"));
    const auto added = add(makeItem("Beta"));
    notices::post(notices::didAddFeed, added);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Silent", "Beta"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(1));
    EXPECT_THAT(selections, ElementsAre("Alpha"));
}

TEST_F(QtOutlineViewTest, AChangeThatNobodyTellsOfIsSeenByItself) {
    const auto item = add(makeItem("Alpha"));
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner"), group);
    show();
    view->expandItem(group);
    controller->reveal(item);
    add(makeItem("Silent"));
    sleepOnce();
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Alpha", "Group", "Inner", "Silent"));
    EXPECT_THAT(selections, ElementsAre("Alpha"));
}

TEST_F(QtOutlineViewTest, ATreeThatIsReplacedWithoutAWordIsSeenByItself) {
    controller->reveal(add(makeItem("Alpha")));
    show();
    const auto old = std::exchange(manager->feeds, {});
    add(makeItem("Other"));
    sleepOnce();
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Other"));
    EXPECT_THAT(view->selectedRows(), IsEmpty());
}

TEST_F(QtOutlineViewTest, ReloadingTheChildrenOfAnItemKeepsWhatIsSelected) {
    const auto group = add(FeedGroup::make("Group"));
    const auto item = add(makeItem("Inner"), group);
    show();
    controller->reveal(item);
    view->reloadItem(group, true);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group", "Inner"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(2));
    EXPECT_THAT(selections, ElementsAre("Inner"));
}

TEST_F(QtOutlineViewTest, ReloadingAllSelectsNothing) {
    const auto item = add(makeItem("Alpha"));
    show();
    controller->reveal(item);
    view->reloadData();
    EXPECT_THAT(view->selectedRows(), IsEmpty());
    EXPECT_THAT(selections, ElementsAre("Alpha", "none"));
}

TEST_F(QtOutlineViewTest, RemovingTheSelectedRowSelectsNothingElse) {
    const auto item = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    show();
    controller->reveal(item);
    manager->removeFeed(item);
    controller->removeRow(0, nullptr);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Beta"));
    EXPECT_THAT(view->selectedRows(), IsEmpty());
    EXPECT_THAT(selections, ElementsAre("Alpha", "none"));
}

TEST_F(QtOutlineViewTest, ASelectedRowInAGroupThatClosesIsSelectedNoMore) {
    const auto group = add(FeedGroup::make("Group"));
    const auto item = add(makeItem("Inner"), group);
    show();
    controller->reveal(item);
    tree().collapse(tree().outline().indexOf(group));
    EXPECT_THAT(view->selectedRows(), IsEmpty());
    EXPECT_THAT(selections, ElementsAre("Inner", "none"));
}

TEST_F(QtOutlineViewTest, AClosingGroupThatIsSelectedItselfStaysSo) {
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner"), group);
    show();
    controller->reveal(group);
    view->expandItem(group);
    QTest::keyClick(&tree(), Qt::Key_Left);
    EXPECT_THAT(selections, ElementsAre("Group"));
}

TEST_F(QtOutlineViewTest, ASeparatorIsLow) {
    add(FeedSeparator::make());
    show();
    EXPECT_EQ(tree().visualRect(tree().outline().index(0, 0, tree().outline().index(0, 0))).height(), 8);
}

TEST_F(QtOutlineViewTest, ARowSaysInWordsHowManyArticlesAreUnread) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    const QModelIndex row = tree().outline().indexOf(item);
    EXPECT_EQ(row.data(Qt::AccessibleTextRole).toString(), "Alpha, 2 unread");
    item->markArticle(*item->articles().front(), ArticleStateFilter::read);
    notices::post(notices::didUpdateFeed, item);
    EXPECT_EQ(row.data(Qt::AccessibleTextRole).toString(), "Alpha, 1 unread");
}

TEST_F(QtOutlineViewTest, TheOutlineOutlivesItsWidget) {
    const auto own = std::make_unique<QWidget>();
    auto other = std::make_shared<QtOutlineView>(own.get(), QStringLiteral("Feeds"));
    other.reset();
    EXPECT_EQ(own->findChildren<OutlineTree*>().size(), 1);
}

} // namespace

} // namespace brindle::desktop
