#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/browser/CollectionEntityTableCellView.hpp"
#include "Brindle/browser/FeedTableCellView.hpp"
#include "Brindle/browser/GroupTableCellView.hpp"
#include "Brindle/browser/SeparatorTableCellView.hpp"
#include "tests/browser/OutlineFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedsOutlineViewDataControllerTest : public OutlineTest {
protected:
    template <typename Cell>
    std::shared_ptr<Cell> cell(const OutlineItem& item) const {
        return std::dynamic_pointer_cast<Cell>(controller->viewFor(item));
    }
};

/// Keeps what is selected.
class SelectionFake : public FeedsOutlineViewDataControllerDelegate {
public:
    void outlineSelectionDidChange(const OutlineItem& item) override { log.push_back(rowName(item)); }
    std::vector<std::string> log;
};

TEST_F(FeedsOutlineViewDataControllerTest, BindsItselfToTheOutline) {
    controller->configure();
    EXPECT_THAT(takeCalls(), ElementsAre("setDelegate", "setDataSource", "setAllowsMultipleSelection false",
                                 "setVerticalMotionCanBeginDrag true", "registerForDraggedType public.brindle"));
    EXPECT_EQ(view->dataSource.lock(), controller);
    EXPECT_EQ(view->delegate.lock(), controller);
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsTheCollectionsThatThePreferencesWantInTheirOrder) {
    setCollections(true, true, true);
    show();
    EXPECT_THAT(rows(), ElementsAre("COLLECTIONS", "today", "unread", "saved", "FEEDS"));
    setCollections(false, true, false);
    controller->reload();
    EXPECT_THAT(rows(), ElementsAre("COLLECTIONS", "unread", "FEEDS"));
}

TEST_F(FeedsOutlineViewDataControllerTest, HasOnlyTheFeedsAtItsRootWithoutCollections) {
    setCollections(false, false, false);
    show();
    EXPECT_THAT(rows(), ElementsAre("FEEDS"));
    EXPECT_EQ(controller->groupOfKind(Section::Kind::collections), nullptr);
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsTheLibraryBelowTheFeedsSection) {
    setCollections(false, false, false);
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("One"), group);
    add(makeItem("Two"));
    show();
    view->expanded.insert(group);
    EXPECT_THAT(rows(), ElementsAre("FEEDS", "Group", "One", "Two"));
    EXPECT_THAT(controller->groupOfKind(Section::Kind::feeds)->items, IsEmpty());
    EXPECT_EQ(controller->numberOfChildren(manager->feeds[1]), 0U);
}

TEST_F(FeedsOutlineViewDataControllerTest, ReloadsAllAndExpandsBothSections) {
    setCollections(true, false, false);
    controller->reload();
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData", "expandItem COLLECTIONS", "expandItem FEEDS"));
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsASectionAsAGroupRowThatCannotBeSelected) {
    const OutlineItem section = feedsSection();
    EXPECT_TRUE(controller->isGroupItem(section));
    EXPECT_TRUE(controller->isItemExpandable(section));
    EXPECT_TRUE(controller->shouldExpandItem(section));
    EXPECT_FALSE(controller->shouldSelectItem(section));
    EXPECT_EQ(controller->heightOfRow(section), view->rowHeight());
    ASSERT_TRUE(cell<GroupTableCellView>(section));
    EXPECT_EQ(cell<GroupTableCellView>(section)->nameTextField.stringValue(), "Feeds");
    EXPECT_EQ(cell<GroupTableCellView>(controller->groupOfKind(Section::Kind::collections))->nameTextField.stringValue(), "Collections");
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsACollectionWithTheNumberOfItsArticles) {
    add(makeItem("Feed", {"a", "b"}));
    collections->refreshCollections();
    const auto row = std::make_shared<Collection>(Collection::Kind::unread);
    EXPECT_FALSE(controller->isItemExpandable(row));
    EXPECT_FALSE(controller->isGroupItem(row));
    EXPECT_TRUE(controller->shouldSelectItem(row));
    EXPECT_EQ(controller->heightOfRow(row), view->rowHeight());
    const auto shown = cell<CollectionEntityTableCellView>(row);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->iconImageView.image(), Image::named("NSImageNameFolderSmart"));
    EXPECT_EQ(shown->nameTextField.stringValue(), "Unread Articles");
    EXPECT_EQ(shown->counterTextField.stringValue(), "2");
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsSeparatorsLowAndNotToBeSelected) {
    for (const OutlineItem& row :
        {OutlineItem(FeedSeparator::make()), OutlineItem(std::make_shared<Collection>(Collection::Kind::separator))}) {
        EXPECT_EQ(controller->heightOfRow(row), 8.0);
        EXPECT_FALSE(controller->shouldSelectItem(row));
        EXPECT_FALSE(controller->isItemExpandable(row));
        EXPECT_TRUE(cell<SeparatorTableCellView>(row));
    }
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsAGroupWithTheUnreadArticlesOfAllBelowIt) {
    const auto group = add(FeedGroup::make("Group"));
    const auto inner = add(FeedGroup::make("Inner"), group);
    const auto item = add(makeItem("Feed", {"a", "b", "c"}), inner);
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_TRUE(controller->isItemExpandable(group));
    EXPECT_FALSE(controller->isGroupItem(group));
    EXPECT_TRUE(controller->shouldSelectItem(group));
    EXPECT_EQ(controller->heightOfRow(group), view->rowHeight());
    const auto shown = cell<FeedTableCellView>(group);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->iconImageView.image(), Image::named("NSImageNameFolder"));
    EXPECT_EQ(shown->nameTextField.stringValue(), "Group");
    EXPECT_EQ(shown->counterTextField.stringValue(), "2");
    EXPECT_EQ(shown->counterTextField.textColor(), TextField::Color::systemGray);
    EXPECT_FALSE(shown->counterTextField.drawsBackground());
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsNoCountForAGroupWithoutUnreadArticles) {
    const auto group = add(FeedGroup::make("Group"));
    const auto item = add(makeItem("Feed", {"a"}), group);
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_EQ(cell<FeedTableCellView>(group)->counterTextField.stringValue(), "");
}

TEST_F(FeedsOutlineViewDataControllerTest, HasNoChildBeyondTheLast) {
    const auto group = add(FeedGroup::make("Group"));
    for (const OutlineItem& parent : {OutlineItem(), feedsSection(), OutlineItem(group), OutlineItem(FeedSeparator::make())})
        EXPECT_EQ(controller->child(controller->numberOfChildren(parent), parent), nullptr);
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsAFeedWithItsUnreadArticlesInGray) {
    const auto item = add(makeItem("Feed", {"a", "b"}));
    EXPECT_FALSE(controller->isItemExpandable(item));
    EXPECT_TRUE(controller->shouldSelectItem(item));
    EXPECT_EQ(controller->heightOfRow(item), view->rowHeight());
    const auto shown = cell<FeedTableCellView>(item);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->nameTextField.stringValue(), "Feed");
    EXPECT_EQ(shown->counterTextField.stringValue(), "2");
    EXPECT_EQ(shown->counterTextField.textColor(), TextField::Color::systemGray);
    EXPECT_FALSE(shown->counterTextField.drawsBackground());
    EXPECT_EQ(shown->dateTextField.stringValue(), "");
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsNoCountForAFeedWithoutUnreadArticles) {
    const auto item = add(makeItem("Feed", {"a"}));
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_EQ(cell<FeedTableCellView>(item)->counterTextField.stringValue(), "");
}

TEST_F(FeedsOutlineViewDataControllerTest, ShowsAFeedsIconOrTheDefaultOne) {
    const auto item = add(makeItem("Feed"));
    EXPECT_EQ(cell<FeedTableCellView>(item)->iconImageView.image(), Image::defaultFeedIcon());
    item->setFeedImageData("bytes");
    EXPECT_EQ(cell<FeedTableCellView>(item)->iconImageView.image(), Image::withData("bytes"));
}

TEST_F(FeedsOutlineViewDataControllerTest, TellsItsDelegateWhatIsSelected) {
    const auto receiver = std::make_shared<SelectionFake>();
    controller->delegate = receiver;
    const auto item = add(makeItem("Feed"));
    show();
    view->click(item);
    EXPECT_THAT(controller->selectedItems(), ElementsAre(item));
    view->click(nullptr);
    EXPECT_THAT(controller->selectedItems(), IsEmpty());
    EXPECT_THAT(receiver->log, ElementsAre("Feed", "root"));
}

TEST_F(FeedsOutlineViewDataControllerTest, RevealsAnEntryFromTheTopDown) {
    const auto outer = add(FeedGroup::make("Outer"));
    const auto inner = add(FeedGroup::make("Inner"), outer);
    const auto item = add(makeItem("Feed"), inner);
    show();
    controller->reveal(item);
    EXPECT_THAT(
        takeCalls(), ElementsAre("expandItem FEEDS", "expandItem Outer", "expandItem Inner", "selectRow Feed", "scrollRowToVisible Feed"));
}

TEST_F(FeedsOutlineViewDataControllerTest, ClearsTheRowOfARemovedEntryWithinUpdates) {
    const auto group = add(FeedGroup::make("Group"));
    controller->removeRow(2, group);
    controller->removeRow(0, nullptr);
    EXPECT_THAT(takeCalls(),
        ElementsAre("beginUpdates", "removeItem 2 in Group", "endUpdates", "beginUpdates", "removeItem 0 in FEEDS", "endUpdates"));
}

TEST_F(FeedsOutlineViewDataControllerTest, NeedsNoStackForTheDepthOfTheTree) {
    auto group = add(FeedGroup::make("Deep"));
    const auto top = group;
    for (int i = 0; i < 50'000; ++i)
        group = add(FeedGroup::make("Deep"), group);
    add(makeItem("Feed", {"a"}), group);
    EXPECT_EQ(cell<FeedTableCellView>(top)->counterTextField.stringValue(), "1");
}

} // namespace
} // namespace brindle
