#include "tests/browser/OutlineFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Row = FeedsOutlineViewDataControllerCollectionItem;

/// The tree: a, Group(x, y), b, a separator, c.
class FeedsOutlineDragTest : public OutlineTest {
protected:
    FeedsOutlineDragTest() {
        add(x, group);
        add(y, group);
        show();
    }

    void begin(const std::vector<OutlineItem>& items) const { controller->draggingSessionWillBegin(items); }
    DragOperation validate(const OutlineItem& item, std::ptrdiff_t index) const {
        return controller->validateDrop(pasteboard, item, index);
    }
    bool drop(const std::vector<OutlineItem>& items, const OutlineItem& item, std::ptrdiff_t index) {
        begin(items);
        const bool isDone = controller->acceptDrop(pasteboard, item, index);
        controller->draggingSessionEnded();
        return isDone;
    }
    std::vector<std::string> top() const { return names(manager->feeds); }

    const Pasteboard pasteboard{{{std::string(Controller::pasteboardType), "a"}}};
    std::shared_ptr<FeedItem> a = add(makeItem("a"));
    std::shared_ptr<FeedGroup> group = add(FeedGroup::make("Group"));
    std::shared_ptr<FeedItem> b = add(makeItem("b"));
    std::shared_ptr<FeedSeparator> separator = add(FeedSeparator::make());
    std::shared_ptr<FeedItem> c = add(makeItem("c"));
    std::shared_ptr<FeedItem> x = makeItem("x");
    std::shared_ptr<FeedItem> y = makeItem("y");
};

TEST_F(FeedsOutlineDragTest, PutsEntriesOnThePasteboardAndNoOtherRow) {
    for (const OutlineItem& entry : {OutlineItem(a), OutlineItem(group), OutlineItem(separator)}) {
        const auto written = controller->pasteboardWriter(entry);
        ASSERT_TRUE(written);
        EXPECT_EQ(written->type, "public.brindle");
    }
    EXPECT_FALSE(controller->pasteboardWriter(feedsSection()));
    EXPECT_FALSE(controller->pasteboardWriter(std::make_shared<Row>(Row::Kind::today)));
}

TEST_F(FeedsOutlineDragTest, RemembersTheDraggedEntriesUntilTheDragEnds) {
    begin({feedsSection(), a, separator});
    EXPECT_THAT(controller->draggedFeeds(), ElementsAre(a, separator));
    controller->draggingSessionEnded();
    EXPECT_THAT(controller->draggedFeeds(), IsEmpty());
}

TEST_F(FeedsOutlineDragTest, RefusesDropsOnTheCollections) {
    begin({a});
    const OutlineItem section = controller->groupOfKind(Section::Kind::collections);
    EXPECT_EQ(validate(section, -1), DragOperation::none);
    EXPECT_EQ(validate(section, 0), DragOperation::none);
    for (const auto kind : {Row::Kind::today, Row::Kind::unread, Row::Kind::saved, Row::Kind::separator})
        EXPECT_EQ(validate(std::make_shared<Row>(kind), 0), DragOperation::none);
    EXPECT_EQ(validate(std::make_shared<Row>(Row::Kind::feeds), 0), DragOperation::move);
}

TEST_F(FeedsOutlineDragTest, AllowsDropsOnTheFeedsSectionAndOnNoRow) {
    begin({a});
    EXPECT_EQ(validate(feedsSection(), -1), DragOperation::move);
    EXPECT_EQ(validate(feedsSection(), 2), DragOperation::move);
    EXPECT_EQ(validate(nullptr, -1), DragOperation::move);
    EXPECT_EQ(validate(nullptr, 0), DragOperation::move);
}

TEST_F(FeedsOutlineDragTest, RefusesDropsOnFeedsAndSeparatorsButNotBetweenThem) {
    begin({a});
    EXPECT_EQ(validate(b, -1), DragOperation::none);
    EXPECT_EQ(validate(separator, -1), DragOperation::none);
    EXPECT_EQ(validate(b, 0), DragOperation::move);
    EXPECT_EQ(validate(separator, 1), DragOperation::move);
}

TEST_F(FeedsOutlineDragTest, AllowsDropsOnAGroupAndBetweenItsChildren) {
    begin({a, separator});
    EXPECT_EQ(validate(group, -1), DragOperation::move);
    EXPECT_EQ(validate(group, 1), DragOperation::move);
}

TEST_F(FeedsOutlineDragTest, RefusesDropsOfAGroupOnItself) {
    begin({group});
    EXPECT_EQ(validate(group, -1), DragOperation::none);
    EXPECT_EQ(validate(group, 0), DragOperation::none);
}

TEST_F(FeedsOutlineDragTest, RefusesDropsOfAGroupBelowItself) {
    const auto inner = add(FeedGroup::make("Inner"), group);
    const auto innermost = add(FeedGroup::make("Innermost"), inner);
    begin({a, group});
    EXPECT_EQ(validate(innermost, -1), DragOperation::none);
    EXPECT_EQ(validate(innermost, 0), DragOperation::none);
    begin({inner});
    EXPECT_EQ(validate(group, 0), DragOperation::move);
}

TEST_F(FeedsOutlineDragTest, MovesAnEntryDownOneLowerThanWhereItWasDropped) {
    EXPECT_TRUE(drop({a}, feedsSection(), 3));
    EXPECT_THAT(top(), ElementsAre("Group", "b", "a", "-", "c"));
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "moveItem 0 in FEEDS to 2 in FEEDS", "reloadItem FEEDS", "endUpdates",
                                 "reloadItem FEEDS", "updateMenu"));
}

TEST_F(FeedsOutlineDragTest, MovesAnEntryUpToWhereItWasDropped) {
    EXPECT_TRUE(drop({c}, nullptr, 1));
    EXPECT_THAT(top(), ElementsAre("a", "c", "Group", "b", "-"));
}

TEST_F(FeedsOutlineDragTest, MovesAnEntryToTheEndOfAGroupThatItIsDroppedOn) {
    EXPECT_TRUE(drop({c}, group, -1));
    EXPECT_THAT(names(group->feeds()), ElementsAre("x", "y", "c"));
    EXPECT_EQ(c->parent.lock(), group);
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "moveItem 4 in FEEDS to 2 in Group", "reloadItem FEEDS", "endUpdates",
                                 "reloadItem Group", "updateMenu"));
}

TEST_F(FeedsOutlineDragTest, PutsAnEntryFromALowerPlaceOfAnotherListOnePlaceHigher) {
    EXPECT_TRUE(drop({a}, group, 2));
    EXPECT_THAT(names(group->feeds()), ElementsAre("x", "a", "y"));
}

TEST_F(FeedsOutlineDragTest, MovesAnEntryOutOfItsGroupToTheTopLevel) {
    EXPECT_TRUE(drop({y}, feedsSection(), 0));
    EXPECT_THAT(top(), ElementsAre("y", "a", "Group", "b", "-", "c"));
    EXPECT_TRUE(y->parent.expired());
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "moveItem 1 in Group to 0 in FEEDS", "reloadItem Group", "endUpdates",
                                 "reloadItem FEEDS", "updateMenu"));
}

TEST_F(FeedsOutlineDragTest, ReloadsTheRowsAboveTheGroupThatAnEntryLeaves) {
    const auto inner = add(FeedGroup::make("Inner"), group);
    const auto z = add(makeItem("z"), inner);
    takeCalls();
    EXPECT_TRUE(drop({z}, feedsSection(), 0));
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "moveItem 0 in Inner to 0 in FEEDS", "reloadItem Inner", "reloadItem Group",
                                 "endUpdates", "reloadItem FEEDS", "updateMenu"));
}

TEST_F(FeedsOutlineDragTest, TakesATargetThatIsNoGroupForTheTopLevel) {
    EXPECT_TRUE(drop({x}, b, 0));
    EXPECT_THAT(top(), ElementsAre("x", "a", "Group", "b", "-", "c"));
}

TEST_F(FeedsOutlineDragTest, TakesAnEntryThatIsNotInTheLibraryForTheOneAfterTheLast) {
    const auto stranger = makeItem("stranger");
    EXPECT_TRUE(drop({stranger}, nullptr, 1));
    EXPECT_THAT(top(), ElementsAre("a", "stranger", "Group", "b", "-", "c"));
    EXPECT_EQ(takeCalls().at(1), "moveItem 5 in FEEDS to 1 in FEEDS");
}

TEST_F(FeedsOutlineDragTest, SavesNothing) {
    EXPECT_TRUE(drop({a}, group, 0));
    EXPECT_FALSE(std::filesystem::exists(folder / "Feeds.brindle"));
}

TEST_F(FeedsOutlineDragTest, KeepsAMovedEntrySelected) {
    view->click(a);
    EXPECT_TRUE(drop({a}, feedsSection(), 3));
    EXPECT_THAT(controller->selectedItems(), ElementsAre(a));
}

TEST_F(FeedsOutlineDragTest, LeavesTheLastEntryWhereItIsWhenDroppedAtTheEnd) {
    EXPECT_TRUE(drop({c}, nullptr, -1));
    EXPECT_THAT(top(), ElementsAre("a", "Group", "b", "-", "c"));
    EXPECT_TRUE(drop({c}, nullptr, 5));
    EXPECT_THAT(top(), ElementsAre("a", "Group", "b", "-", "c"));
}

TEST_F(FeedsOutlineDragTest, MovesASeparatorLikeAFeed) {
    EXPECT_TRUE(drop({separator}, group, 0));
    EXPECT_THAT(names(group->feeds()), ElementsAre("-", "x", "y"));
}

TEST_F(FeedsOutlineDragTest, PutsFurtherEntriesBelowTheFirstWhereThatComesFromBelow) {
    EXPECT_TRUE(drop({b, c}, nullptr, 0));
    EXPECT_THAT(top(), ElementsAre("b", "c", "a", "Group", "-"));
}

TEST_F(FeedsOutlineDragTest, PutsFurtherEntriesAboveTheFirstWhereThatComesFromAbove) {
    EXPECT_TRUE(drop({a, group}, nullptr, 5));
    EXPECT_THAT(top(), ElementsAre("b", "-", "c", "Group", "a"));
}

TEST_F(FeedsOutlineDragTest, EndsTheTimerOfAMovedFeed) {
    a->scheduleUpdates(false);
    EXPECT_TRUE(drop({a}, group, 0));
    EXPECT_FALSE(a->hasTimer());
}

TEST_F(FeedsOutlineDragTest, MovesNothingWithoutDraggedEntriesOrWithoutTheirData) {
    EXPECT_FALSE(controller->acceptDrop(pasteboard, nullptr, 0));
    begin({a});
    EXPECT_FALSE(controller->acceptDrop(Pasteboard{{{"text/plain", "a"}}}, nullptr, 3));
    EXPECT_THAT(top(), ElementsAre("a", "Group", "b", "-", "c"));
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
} // namespace brindle
