#include "tests/desktop/QtOutlineViewFixture.hpp"

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class QtOutlineViewDragTest : public QtOutlineViewTest {};

TEST_F(QtOutlineViewDragTest, ARowThatIsMovedStaysSelected) {
    const auto first = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    add(makeItem("Gamma"));
    show();
    controller->reveal(first);
    move(first, controller->groupOfKind(FeedsOutlineViewDataController::CollectionGroup::Kind::feeds), 2);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Beta", "Alpha", "Gamma"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(2));
    EXPECT_THAT(selections, ElementsAre("Alpha"));
}

TEST_F(QtOutlineViewDragTest, AMoveIntoAGroupThatWasNeverOpenedShowsWhenItOpens) {
    const auto item = add(makeItem("Alpha"));
    const auto group = add(FeedGroup::make("Group"));
    show();
    move(item, group, OutlineViewDataSource::dropOnItemIndex);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group"));
    view->expandItem(group);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group", "Alpha"));
}

TEST_F(QtOutlineViewDragTest, ASelectedRowThatMovesOutOfSightIsSelectedNoMore) {
    const auto item = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    const auto group = add(FeedGroup::make("Group"));
    show();
    controller->reveal(item);
    move(item, group, OutlineViewDataSource::dropOnItemIndex);
    EXPECT_THAT(view->selectedRows(), IsEmpty());
    EXPECT_THAT(selections, ElementsAre("Alpha", "none"));
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Beta", "Group"));
}

TEST_F(QtOutlineViewDragTest, ADropInTheMiddleOfAGroupGoesOnItAndAtItsEdgeBesideIt) {
    const auto item = add(makeItem("Alpha"));
    const auto group = add(FeedGroup::make("Group"));
    show();
    EXPECT_EQ(drop(item, rectOf(group).center()), "Group -1");
    EXPECT_EQ(drop(item, rectOf(group).topLeft() + QPoint(20, 1)), "FEEDS 1");
    EXPECT_EQ(drop(item, rectOf(group).bottomLeft() + QPoint(20, -1)), "FEEDS 2");
}

TEST_F(QtOutlineViewDragTest, ADropOnAFeedGoesBesideIt) {
    const auto item = add(makeItem("Alpha"));
    const auto other = add(makeItem("Beta"));
    show();
    EXPECT_EQ(drop(item, rectOf(other).center() + QPoint(0, 1)), "FEEDS 2");
    EXPECT_EQ(drop(item, rectOf(other).center() - QPoint(0, 2)), "FEEDS 1");
}

TEST_F(QtOutlineViewDragTest, ADropBelowAllRowsGoesToTheTopLevel) {
    const auto item = add(makeItem("Alpha"));
    show();
    EXPECT_EQ(drop(item, {20, 450}), "root -1");
}

TEST_F(QtOutlineViewDragTest, AGroupIsNotDroppedIntoItself) {
    const auto outer = add(FeedGroup::make("Outer"));
    const auto inner = add(FeedGroup::make("Inner"), outer);
    show();
    view->expandItem(outer);
    EXPECT_EQ(drop(outer, rectOf(inner).center()), "");
}

TEST_F(QtOutlineViewDragTest, ADropOfAnythingElseIsRefused) {
    add(makeItem("Alpha"));
    show();
    EXPECT_EQ(tree().dropAt({20, 450}, Pasteboard{}), std::nullopt);
}

TEST_F(QtOutlineViewDragTest, AltAndAnArrowMoveTheSelectedRow) {
    const auto item = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    show();
    controller->reveal(item);
    QTest::keyClick(&tree(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_THAT(names(manager->feeds), ElementsAre("Beta", "Alpha"));
    EXPECT_THAT(view->selectedRows(), ElementsAre(2));
    QTest::keyClick(&tree(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(names(manager->feeds), ElementsAre("Alpha", "Beta"));
}

} // namespace

} // namespace brindle::desktop
