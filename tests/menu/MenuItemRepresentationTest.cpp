#include "Brindle/menu/FeedGroupMenuItemRepresentation.hpp"
#include "Brindle/menu/FeedItemMenuItemRepresentation.hpp"
#include "Brindle/menu/FeedMenuItems.hpp"
#include "Brindle/menu/FeedSeparatorMenuItemRepresentation.hpp"
#include "tests/menu/MenuFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class MenuItemRepresentationTest : public MenuTest {
protected:
    std::shared_ptr<FeedItemMenuItemRepresentation> configured(const std::shared_ptr<FeedItem>& feed) {
        add(feed);
        const auto representation = std::make_shared<FeedItemMenuItemRepresentation>(feed, rebuild());
        representation->configure();
        return representation;
    }
    std::shared_ptr<FeedGroupMenuItemRepresentation> configured(const std::shared_ptr<FeedGroup>& group) {
        add(group);
        const auto representation = std::make_shared<FeedGroupMenuItemRepresentation>(group, rebuild());
        representation->configure();
        return representation;
    }
};

TEST_F(MenuItemRepresentationTest, BeginsAsAnItemOfNothingWithAnEmptySubmenu) {
    MenuItemRepresentation representation;
    representation.configure();
    EXPECT_EQ(representation.menuItem()->title(), "");
    EXPECT_EQ(representation.menuItem()->action(), "");
    EXPECT_EQ(representation.menuItem()->submenu(), representation.submenu());
    EXPECT_THAT(representation.submenu()->items(), IsEmpty());
}

TEST_F(MenuItemRepresentationTest, GivesAFeedItsActionsAndItsArticlesInTheirOrder) {
    const auto feed = makeItem("Feed", {"B", "A"});
    const auto representation = configured(feed);
    EXPECT_EQ(representation->menuItem()->title(), "Feed (2)");
    EXPECT_TRUE(representation->menuItem()->isEnabled());
    EXPECT_EQ(outline(*representation->submenu()), R"(markAllReadMenuTitle <markArticlesAsRead:>
markAllUnreadMenuTitle <markArticlesAsUnread:>
openAllUnreadMenuTitle <openAllUnreadArticles:>
--------
[x] B <showArticle:>
[x] A <showArticle:>
)");
    for (std::size_t i = 0; i < 3; ++i) {
        const MenuItem& item = *representation->submenu()->items()[i];
        EXPECT_EQ(item.representedObject(), feed);
        EXPECT_FALSE(item.hasTarget());
    }
    const auto& articles = representation->feedItemArticlesMenuItemRepresentation();
    EXPECT_FALSE(articles->isCollection);
    EXPECT_EQ(articles->articles, feed->articles());
    EXPECT_THAT(articles->submenu()->items(), IsEmpty());
    EXPECT_EQ(representation->submenu()->items()[4]->menu(), representation->submenu().get());
}

TEST_F(MenuItemRepresentationTest, SaysOfAFeedWithoutArticlesThatItHasNone) {
    const auto representation = configured(makeItem("Feed", {}));
    EXPECT_EQ(representation->menuItem()->title(), "Feed");
    EXPECT_EQ(outline(*representation->submenu()), "noArticlesMenuItem\n");
    EXPECT_EQ(representation->feedItemArticlesMenuItemRepresentation(), nullptr);
    EXPECT_TRUE(representation->menuItem()->image().has_value());
}

TEST_F(MenuItemRepresentationTest, AddsNoActionsToTheEmptySubmenuOfAFeedWithoutArticles) {
    FeedItemMenuItemRepresentation representation(makeItem("Feed", {}), rebuild());
    EXPECT_FALSE(representation.addFeedActions());
    EXPECT_EQ(outline(*representation.submenu()), "noArticlesMenuItem\n");
    EXPECT_TRUE(representation.addFeedActions()) << "the submenu is not empty any more";
    EXPECT_THAT(representation.submenu()->items(), SizeIs(5));
}

TEST_F(MenuItemRepresentationTest, CountsAFeedsUnreadArticlesUnderItsPreference) {
    const auto feed = makeItem("Feed", {"A", "B"});
    markRead(*feed, 0);
    EXPECT_EQ(configured(feed)->menuItem()->title(), "Feed (1)");
    markRead(*feed, 1);
    EXPECT_EQ(configured(feed)->menuItem()->title(), "Feed");
    parse(*feed, {"C"});
    set(preference::showUnreadArticlesInFeeds, false);
    EXPECT_EQ(configured(feed)->menuItem()->title(), "Feed");
}

TEST_F(MenuItemRepresentationTest, ShowsAFeedsOwnIconElseTheSharedOne) {
    const auto feed = makeItem("Feed", {"A"});
    EXPECT_EQ(configured(feed)->menuItem()->image(), Image::defaultFeedIcon().resized({16, 16}));
    feed->setFeedImageData("icon");
    const auto representation = configured(feed);
    EXPECT_EQ(representation->menuItem()->image(), Image::withData("icon").resized({16, 16}));
    EXPECT_EQ(representation->submenu()->items().back()->image(), Image::withData("icon").resized({16, 16}));
}

TEST_F(MenuItemRepresentationTest, CountsTheUnreadArticlesBelowAGroupUnderItsPreference) {
    const auto group = FeedGroup::make("Group");
    const auto inner = FeedGroup::make("Inner");
    inner->add(makeItem("Feed", {"A", "B"}), 0);
    group->add(inner, 0);
    group->add(makeItem("Another", {"C"}), 1);
    EXPECT_EQ(configured(group)->menuItem()->title(), "Group (3)");
    set(preference::showUnreadArticlesInGroups, false);
    EXPECT_EQ(configured(group)->menuItem()->title(), "Group");
}

TEST_F(MenuItemRepresentationTest, CountsNothingBesideAGroupWithoutUnreadArticles) {
    const auto group = FeedGroup::make("Group");
    group->add(makeItem("Feed", {}), 0);
    const auto representation = configured(group);
    EXPECT_EQ(representation->menuItem()->title(), "Group");
    EXPECT_EQ(representation->menuItem()->image(), Image::named("NSImageNameFolder").resized({16, 16}));
}

TEST_F(MenuItemRepresentationTest, SaysOfAGroupWithoutChildrenThatItHasNone) {
    EXPECT_EQ(outline(*configured(FeedGroup::make("Group"))->submenu()), "noFeedsMenuItem\n");
}

TEST_F(MenuItemRepresentationTest, BeginsAnewWhenAGroupIsConfiguredAgain) {
    const auto group = FeedGroup::make("Group");
    group->add(FeedSeparator::make(), 0);
    const auto representation = configured(group);
    const std::string once = outline(*representation->submenu());
    representation->configure();
    EXPECT_EQ(outline(*representation->submenu()), once);
    EXPECT_THAT(representation->menuItemRepresentations, SizeIs(1));
}

TEST_F(MenuItemRepresentationTest, MakesALineOfASeparator) {
    const FeedSeparatorMenuItemRepresentation representation;
    EXPECT_TRUE(representation.menuItem()->isSeparator());
    EXPECT_FALSE(representation.menuItem()->hasSubmenu());
}

TEST_F(MenuItemRepresentationTest, AppendsAnItemForEachEntryOfAList) {
    const auto feed = makeItem("Feed", {});
    const auto group = FeedGroup::make("Group");
    add(feed);
    add(FeedSeparator::make());
    add(group);
    Menu menu;
    menu.addItem(std::make_shared<MenuItem>("First"));
    MenuItemRepresentations representations;
    appendFeedItems(manager->feeds, menu, representations, rebuild());
    EXPECT_EQ(outline(menu), "First\nFeed <openFeed:>\n  noArticlesMenuItem\n--------\nGroup <openFeed:>\n  noFeedsMenuItem\n");
    ASSERT_THAT(representations, SizeIs(3));
    EXPECT_EQ(representations[0]->menuItem()->representedObject(), feed);
    EXPECT_EQ(representations[2]->menuItem()->representedObject(), group);
    EXPECT_EQ(representations[2]->menuItem(), menu.items()[3]);
}

} // namespace
} // namespace brindle
