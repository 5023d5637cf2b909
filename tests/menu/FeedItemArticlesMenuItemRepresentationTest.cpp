#include "Brindle/menu/FeedItemArticlesMenuItemRepresentation.hpp"
#include "platform/ResponderChain.hpp"
#include "tests/menu/MenuFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Kind = SyndicatedEnclosure::Kind;

class FeedItemArticlesMenuItemRepresentationTest : public MenuTest {
protected:
    std::shared_ptr<FeedItemArticlesMenuItemRepresentation> configured() {
        auto made = std::make_shared<FeedItemArticlesMenuItemRepresentation>(feed->articles(), false, rebuild());
        made->configure();
        return made;
    }
    /// The item of the feed's only article, made anew. Its representation lives until the next call.
    std::shared_ptr<MenuItem> item() {
        representation = configured();
        return representation->submenu()->items().at(0);
    }
    std::string titleOf(const std::string& title) {
        parse(*feed, {title});
        return item()->title();
    }
    std::optional<Image> imageOf(const std::vector<Kind>& enclosures) {
        parse(*feed, {"A"});
        for (const Kind kind : enclosures)
            feed->articles()[0]->entry->enclosures.push_back({URL::make("http://127.0.0.1/file").value(), 0, kind});
        return item()->image();
    }
    void setColor(std::string_view allowed, std::string_view key, std::string_view color) {
        set(allowed, true);
        set(key, PropertyList::Data{Color::make(color)->archivedData().value()});
    }
    /// Check mark and colour of an unread article, then of a read one.
    std::vector<std::string> looks() {
        std::vector<std::string> found;
        parse(*feed, {"A" + std::to_string(++_parses)});
        for (int i = 0; i < 2; ++i) {
            const auto made = item();
            const auto& style = made->style();
            found.push_back((made->state() ? "[x] " : "") + (style && style->color ? style->color->hexString() : "plain"));
            markRead(*feed, 0);
        }
        return found;
    }

    FeedItemArticlesMenuItemRepresentationTest() { add(feed); }

    std::shared_ptr<FeedItem> feed = makeItem("Feed", {"A"});
    std::shared_ptr<FeedItemArticlesMenuItemRepresentation> representation;

private:
    int _parses = 0;
};

TEST_F(FeedItemArticlesMenuItemRepresentationTest, LeavesItsItemAsItWasMadeWithoutArticles) {
    parse(*feed, {});
    const auto empty = std::make_shared<FeedItemArticlesMenuItemRepresentation>(feed->articles(), true, rebuild());
    empty->menuItem()->setTitle("Title");
    empty->menuItem()->setEnabled(false);
    empty->configure();
    EXPECT_EQ(empty->menuItem()->title(), "Title");
    EXPECT_FALSE(empty->menuItem()->isEnabled());
    EXPECT_TRUE(empty->isCollection);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, EnablesItsItemAndLeavesTheTitleToTheCaller) {
    const auto made = std::make_shared<FeedItemArticlesMenuItemRepresentation>(feed->articles(), false, rebuild());
    made->menuItem()->setTitle("Title");
    made->menuItem()->setEnabled(false);
    made->configure();
    EXPECT_EQ(made->menuItem()->title(), "");
    EXPECT_TRUE(made->menuItem()->isEnabled());
    made->configure();
    EXPECT_THAT(made->submenu()->items(), SizeIs(1)) << "it begins with an empty submenu";
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, HasAnItemForEveryArticle) {
    parse(*feed, std::vector<std::string>(1000, "A"));
    EXPECT_THAT(configured()->submenu()->items(), SizeIs(1000));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, LetsTheDelegateShowTheArticle) {
    const auto made = item();
    EXPECT_EQ(made->action(), "showArticle:");
    EXPECT_EQ(made->target(), applicationDelegate);
    EXPECT_EQ(made->representedObject(), feed->articles()[0]);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, CutsWhiteSpaceFromBothEndsOfATitle) {
    EXPECT_EQ(titleOf(" \n\t\u00a0Two  words\r\n"), "Two  words");
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, KeepsATitleOfAnyLengthUnlessShortOnesAreWanted) {
    EXPECT_EQ(titleOf(' ' + std::string(500, 'x')), std::string(500, 'x'));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, ShortensATitleOfMoreThan64Characters) {
    set(preference::useShortArticleNames, true);
    EXPECT_EQ(titleOf(std::string(64, 'x') + "  "), std::string(64, 'x'));
    EXPECT_EQ(titleOf(std::string(65, 'x')), std::string(64, 'x') + "...");
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, CountsCharactersAsPeopleDo) {
    set(preference::useShortArticleNames, true);
    std::string accented;
    for (int i = 0; i < 64; ++i)
        accented += "e\u0301";
    EXPECT_EQ(titleOf(accented), accented);
    EXPECT_EQ(titleOf(accented + "e\u0301"), accented + "...");
    std::string flags;
    for (int i = 0; i < 64; ++i)
        flags += "\U0001F1E9\U0001F1EA";
    EXPECT_EQ(titleOf(flags + "x"), flags + "...");
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, ShowsTheSharedIconForAnArticleWhoseFeedIsGone) {
    feed->setFeedImageData("icon");
    EXPECT_EQ(item()->image(), Image::withData("icon").resized({16, 16}));
    feed->articles()[0]->feedItem.reset();
    EXPECT_EQ(item()->image(), Image::defaultFeedIcon().resized({16, 16}));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, ShowsTheIconOfAFeedThatHasLeftTheLibrary) {
    feed->setFeedImageData("icon");
    manager->removeFeed(feed);
    EXPECT_EQ(item()->image(), Image::withData("icon").resized({16, 16}));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, SharesTheIconAmongTheArticlesOfAFeed) {
    feed->setFeedImageData("icon");
    parse(*feed, {"A", "B"});
    const auto made = configured();
    const auto& items = made->submenu()->items();
    EXPECT_EQ(&items.at(0)->image()->data(), &items.at(1)->image()->data());
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, ShowsTheKindOfTheLastEnclosureThatIsHeardOrSeen) {
    EXPECT_EQ(imageOf({Kind::audio}), Image::named("feed_audeo"));
    EXPECT_EQ(imageOf({Kind::video}), Image::named("feed_video"));
    EXPECT_EQ(imageOf({Kind::audio, Kind::video}), Image::named("feed_video"));
    EXPECT_EQ(imageOf({Kind::video, Kind::audio, Kind::other, Kind::image}), Image::named("feed_audeo"));
    EXPECT_EQ(imageOf({Kind::image, Kind::other}), Image::defaultFeedIcon().resized({16, 16}));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, ShowsWhatWasTrueWhenItWasConfigured) {
    const auto made = std::make_shared<FeedItemArticlesMenuItemRepresentation>(feed->articles(), false, rebuild());
    feed->setFeedImageData("icon");
    made->configure();
    markRead(*feed, 0);
    feed->setFeedImageData(std::nullopt);
    set(preference::allowFeedArticlePreview, false);
    parse(*feed, {"B"});
    const MenuItem& article = *made->submenu()->items().at(0);
    EXPECT_EQ(article.title(), "A");
    EXPECT_TRUE(article.state());
    EXPECT_EQ(article.image(), Image::withData("icon").resized({16, 16}));
    EXPECT_TRUE(article.hasSubmenu());
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, MarksAndStylesUnreadArticles) {
    setColor(preference::allowCustomColorForUnreadArticles, preference::customColorForUnreadArticles, "#ff0000");
    setColor(preference::allowCustomColorForReadArticles, preference::customColorForReadArticles, "#00ff00");
    EXPECT_THAT(looks(), ElementsAre("[x] #ff0000", "#00ff00"));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, GivesReadArticlesMarkAndStyleOfUnreadOnesWhenThoseAreMarked) {
    setColor(preference::allowCustomColorForUnreadArticles, preference::customColorForUnreadArticles, "#ff0000");
    setColor(preference::allowCustomColorForReadArticles, preference::customColorForReadArticles, "#00ff00");
    set(preference::markMenuItemsWhenRead, true);
    EXPECT_THAT(looks(), ElementsAre("#00ff00", "[x] #ff0000"));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, MarksNothingWithoutMarksWhicheverItemsTheyAreFor) {
    setColor(preference::allowCustomColorForUnreadArticles, preference::customColorForUnreadArticles, "#ff0000");
    set(preference::markMenuItems, false);
    EXPECT_THAT(looks(), ElementsAre("#ff0000", "plain"));
    set(preference::markMenuItemsWhenRead, true);
    EXPECT_THAT(looks(), ElementsAre("#ff0000", "plain"));
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, HasNoColourUnlessItIsAllowed) {
    set(preference::customColorForUnreadArticles, PropertyList::Data{Color::make("#ff0000")->archivedData().value()});
    EXPECT_EQ(item()->style(), nullptr);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, TakesColourDataThatIsNoneForNoColour) {
    set(preference::allowCustomColorForUnreadArticles, true);
    set(preference::customColorForUnreadArticles, PropertyList::Data{"no archive"});
    EXPECT_EQ(item()->style(), nullptr);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, SetsUnreadArticlesInBoldAndNeverReadOnes) {
    set(preference::allowBoldTextForUnreadArticles, true);
    ASSERT_NE(item()->style(), nullptr);
    EXPECT_TRUE(item()->style()->bold);
    EXPECT_EQ(item()->style()->color, std::nullopt);
    markRead(*feed, 0);
    EXPECT_EQ(item()->style(), nullptr);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, HangsAPreviewFromEachArticleUnderItsPreference) {
    const auto made = item();
    ASSERT_TRUE(made->hasSubmenu());
    ASSERT_THAT(made->submenu()->items(), SizeIs(1));
    const MenuItem& preview = *made->submenu()->items()[0];
    EXPECT_EQ(preview.title(), "");
    EXPECT_EQ(preview.action(), "");
    EXPECT_EQ(preview.representedObject(), feed->articles()[0]);
    EXPECT_EQ(made->submenu()->delegate.lock(), representation);
    set(preference::allowFeedArticlePreview, false);
    EXPECT_FALSE(item()->hasSubmenu());
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, HoldsAPreviewWhileItsMenuIsOpen) {
    const auto submenu = item()->submenu();
    EXPECT_THAT(*previews->log, IsEmpty());
    submenu->willOpen({});
    EXPECT_THAT(*previews->log, ElementsAre("makePreview A", "view", "fill"));
    EXPECT_NE(submenu->items()[0]->view(), nullptr);
    EXPECT_NE(representation->currentFeedBrowserArticleViewController(), nullptr);
    previews->log->clear();
    submenu->didClose();
    EXPECT_THAT(*previews->log, ElementsAre("removeFromSuperview", "end"));
    EXPECT_EQ(submenu->items()[0]->view(), nullptr);
    EXPECT_EQ(representation->currentFeedBrowserArticleViewController(), nullptr);
}

TEST_F(FeedItemArticlesMenuItemRepresentationTest, BearsMenusThatHoldNoArticle) {
    const auto made = configured();
    Menu empty;
    made->menuWillOpen(empty);
    made->menuDidClose(empty);
    Menu other;
    other.addItem(std::make_shared<MenuItem>("Other"));
    made->menuWillOpen(other);
    made->menuDidClose(other);
    EXPECT_THAT(*previews->log, IsEmpty());
}

TEST(ArticlePreviewTest, IsTheContentWithoutItsTags) {
    const auto entry = std::make_shared<SyndicatedEntry>(Date());
    const FeedItemArticle article(entry, {});
    EXPECT_EQ(previewText(article), "");
    entry->summary = std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, "<p>Summary</p>");
    EXPECT_EQ(previewText(article), "");
    entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, "<p>Some <b>text</b></p>"));
    EXPECT_EQ(previewText(article), "Some text");
}

} // namespace
} // namespace brindle
