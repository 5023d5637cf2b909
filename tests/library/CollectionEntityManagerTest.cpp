#include "Brindle/library/CollectionEntityManager.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/UserLocale.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

Date date(std::string_view text) {
    return ISO8601DateFormatter::date(text).value();
}

class CollectionEntityManagerTest : public LibraryTest {
protected:
    CollectionEntityManagerTest() {
        setUserTimeZone("GMT");
        clock->advance(date("2020-01-02T12:00:00Z") - clock->now());
        showAll(true);
    }
    ~CollectionEntityManagerTest() override { LocalizedStrings::set({}); }

    void showAll(bool shown) const {
        for (const std::string_view key : {preference::showTodayCollectionInMenu, preference::showTodayCollectionInFeedsBrowser,
                 preference::showUnreadCollectionInMenu, preference::showUnreadCollectionInFeedsBrowser,
                 preference::showSavedArticlesCollectionInMenu, preference::showSavedArticlesCollectionInFeedsBrowser})
            defaults->registerDefaults({{std::string(key), shown}});
    }

    /// Adds a feed whose articles have these titles and dates.
    std::shared_ptr<FeedItem> add(
        const std::vector<std::pair<std::string, std::string>>& articles, const std::shared_ptr<FeedGroup>& group = nullptr) {
        const auto item = makeItem();
        for (const auto& [title, moment] : articles) {
            const auto entry = std::make_shared<SyndicatedEntry>(clock->now());
            entry->title = entry->identifier = title;
            entry->dateUpdated = date(moment);
            item->session().feed()->entries.push_back(entry);
        }
        item->syndicatedSessionDidFinishParsing(item->session());
        feeds->addFeed(item, group ? -1 : std::ssize(feeds->feeds), group);
        return item;
    }

    CollectionEntityManager makeCollections() const { return {feeds, saved, defaults, clock}; }

    static std::vector<std::string> titlesOf(const CollectionEntity<FeedItemArticle>& collection) { return titles(collection.entities()); }

    std::shared_ptr<FeedsManager> feeds = makeManager();
    std::shared_ptr<SavedArticlesManager> saved = std::make_shared<SavedArticlesManager>(folder, environment);
    std::shared_ptr<UserDefaults> defaults = std::make_shared<UserDefaults>(folder / "Preferences.plist");
};

TEST(CollectionEntityTest, TheBaseKeepsWhatItHasWhenItIsRefreshed) {
    CollectionEntity<FeedItemArticle> collection("Name");
    EXPECT_EQ(collection.name, "Name");
    EXPECT_FALSE(collection.isGroup);
    EXPECT_THAT(collection.entities(), IsEmpty());
    collection.setEntities({nullptr});
    collection.refresh();
    EXPECT_EQ(collection.entities().size(), 1U);
}

TEST_F(CollectionEntityManagerTest, CollectionsHaveTheirNamesInTheUsersLanguage) {
    const CollectionEntityManager english = makeCollections();
    EXPECT_EQ(english.todayCollectionEntity->name, "Today");
    EXPECT_EQ(english.unreadArticlesCollectionEntity->name, "Unread Articles");
    EXPECT_EQ(english.savedArticlesCollectionEntity->name, "Saved Articles");
    LocalizedStrings::set({{"Today", "Heute"}, {"Unread Articles", "Ungelesen"}, {"Saved Articles", "Gesichert"}});
    EXPECT_EQ(english.todayCollectionEntity->name, "Today");
    const CollectionEntityManager german = makeCollections();
    EXPECT_EQ(german.todayCollectionEntity->name, "Heute");
    EXPECT_EQ(german.unreadArticlesCollectionEntity->name, "Ungelesen");
    EXPECT_EQ(german.savedArticlesCollectionEntity->name, "Gesichert");
    EXPECT_FALSE(german.todayCollectionEntity->isGroup);
}

TEST_F(CollectionEntityManagerTest, EachCollectionIsRefreshedOnceAtCreation) {
    add({{"A", "2020-01-02T10:00:00Z"}});
    saved->saveArticle(feeds->articles(ArticleStateFilter::any)[0]);
    showAll(false);
    const CollectionEntityManager collections = makeCollections();
    EXPECT_THAT(titlesOf(*collections.todayCollectionEntity), ElementsAre("A"));
    EXPECT_THAT(titlesOf(*collections.unreadArticlesCollectionEntity), ElementsAre("A"));
    EXPECT_THAT(titlesOf(*collections.savedArticlesCollectionEntity), ElementsAre("A"));
}

TEST_F(CollectionEntityManagerTest, TodayHoldsTheArticlesOfTheDayNewestFirst) {
    const auto group = FeedGroup::make("Group");
    feeds->addFeed(group, 0);
    add({{"first", "2020-01-02T00:00:00Z"}, {"yesterday", "2020-01-01T23:59:59Z"}, {"last", "2020-01-02T23:59:59Z"}}, group);
    add({{"tomorrow", "2020-01-03T00:00:00Z"}, {"noon", "2020-01-02T12:00:00Z"}, {"long ago", "2019-01-02T12:00:00Z"}});
    EXPECT_THAT(titlesOf(*makeCollections().todayCollectionEntity), ElementsAre("last", "noon", "first"));
}

TEST_F(CollectionEntityManagerTest, TodayHoldsReadArticlesAsWellAndAllOfEqualDates) {
    const auto item = add({{"a", "2020-01-02T10:00:00Z"}, {"b", "2020-01-02T10:00:00Z"}, {"c", "2020-01-02T10:00:00Z"}});
    feeds->markArticles(ArticleStateFilter::read);
    EXPECT_THAT(titlesOf(*makeCollections().todayCollectionEntity), UnorderedElementsAre("a", "b", "c"));
}

TEST_F(CollectionEntityManagerTest, TodayGoesByTheDateOfTheUpdateNotOfTheCreation) {
    const auto item = add({{"updated", "2020-01-02T10:00:00Z"}, {"created", "2020-01-01T10:00:00Z"}});
    item->articles()[0]->entry->dateCreated = date("2019-12-01T00:00:00Z");
    item->articles()[1]->entry->dateCreated = clock->now();
    EXPECT_THAT(titlesOf(*makeCollections().todayCollectionEntity), ElementsAre("updated"));
}

TEST_F(CollectionEntityManagerTest, TodayIsADayOfTheUsersTimeZone) {
    add({{"late in Berlin", "2020-01-02T23:30:00Z"}, {"early in Berlin", "2020-01-01T23:30:00Z"}});
    setUserTimeZone("Europe/Berlin");
    EXPECT_THAT(titlesOf(*makeCollections().todayCollectionEntity), ElementsAre("early in Berlin"));
    setUserTimeZone("GMT");
    EXPECT_THAT(titlesOf(*makeCollections().todayCollectionEntity), ElementsAre("late in Berlin"));
}

TEST_F(CollectionEntityManagerTest, TodayMovesOnWithTheFirstRefreshAfterMidnight) {
    add({{"before", "2020-01-02T23:59:59Z"}, {"after", "2020-01-03T00:00:01Z"}});
    CollectionEntityManager collections = makeCollections();
    clock->advance(std::chrono::hours(12));
    EXPECT_THAT(titlesOf(*collections.todayCollectionEntity), ElementsAre("before"));
    collections.refreshCollections();
    EXPECT_THAT(titlesOf(*collections.todayCollectionEntity), ElementsAre("after"));
}

TEST_F(CollectionEntityManagerTest, UnreadHoldsTheUnreadArticlesInTreeOrderUnsorted) {
    const auto group = FeedGroup::make("Group");
    feeds->addFeed(group, 0);
    add({{"old", "2000-01-01T00:00:00Z"}, {"new", "2020-01-02T10:00:00Z"}}, group);
    const auto item = add({{"read", "2020-01-02T10:00:00Z"}, {"last", "2019-01-01T00:00:00Z"}});
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_THAT(titlesOf(*makeCollections().unreadArticlesCollectionEntity), ElementsAre("old", "new", "last"));
}

TEST_F(CollectionEntityManagerTest, AnArticleThatIsMarkedReadStaysUntilTheNextRefresh) {
    const auto item = add({{"a", "2020-01-02T10:00:00Z"}, {"b", "2020-01-02T10:00:00Z"}});
    CollectionEntityManager collections = makeCollections();
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_THAT(titlesOf(*collections.unreadArticlesCollectionEntity), ElementsAre("a", "b"));
    collections.refreshCollections();
    EXPECT_THAT(titlesOf(*collections.unreadArticlesCollectionEntity), ElementsAre("b"));
}

TEST_F(CollectionEntityManagerTest, SavedHoldsTheSavedArticlesInTheirOrder) {
    const auto item = add({{"a", "2020-01-02T10:00:00Z"}, {"b", "2019-01-02T10:00:00Z"}});
    CollectionEntityManager collections = makeCollections();
    saved->saveArticle(item->articles()[1]);
    saved->saveArticle(item->articles()[0]);
    EXPECT_THAT(collections.savedArticlesCollectionEntity->entities(), IsEmpty());
    collections.refreshCollections();
    EXPECT_THAT(collections.savedArticlesCollectionEntity->entities(), ElementsAre(item->articles()[1], item->articles()[0]));
}

TEST_F(CollectionEntityManagerTest, ASavedArticleOfARemovedFeedStaysWithoutAFeed) {
    auto item = add({{"a", "2020-01-02T10:00:00Z"}});
    saved->saveArticle(item->articles()[0]);
    feeds->removeFeed(item);
    item.reset();
    CollectionEntityManager collections = makeCollections();
    collections.refreshCollections();
    ASSERT_THAT(titlesOf(*collections.savedArticlesCollectionEntity), ElementsAre("a"));
    EXPECT_EQ(collections.savedArticlesCollectionEntity->entities()[0]->feedItem.lock(), nullptr);
}

TEST_F(CollectionEntityManagerTest, WithAllKeysFalseARefreshChangesNothing) {
    CollectionEntityManager collections = makeCollections();
    const auto item = add({{"a", "2020-01-02T10:00:00Z"}});
    saved->saveArticle(item->articles()[0]);
    showAll(false);
    collections.refreshCollections();
    EXPECT_THAT(collections.todayCollectionEntity->entities(), IsEmpty());
    EXPECT_THAT(collections.unreadArticlesCollectionEntity->entities(), IsEmpty());
    EXPECT_THAT(collections.savedArticlesCollectionEntity->entities(), IsEmpty());
}

TEST_F(CollectionEntityManagerTest, ACollectionThatIsShownNoMoreKeepsWhatItHas) {
    const auto item = add({{"a", "2020-01-02T10:00:00Z"}});
    saved->saveArticle(item->articles()[0]);
    CollectionEntityManager collections = makeCollections();
    feeds->removeFeed(item);
    saved->savedArticles.clear();
    showAll(false);
    collections.refreshCollections();
    EXPECT_THAT(titlesOf(*collections.todayCollectionEntity), ElementsAre("a"));
    EXPECT_THAT(titlesOf(*collections.unreadArticlesCollectionEntity), ElementsAre("a"));
    EXPECT_THAT(titlesOf(*collections.savedArticlesCollectionEntity), ElementsAre("a"));
    showAll(true);
    collections.refreshCollections();
    EXPECT_THAT(collections.todayCollectionEntity->entities(), IsEmpty());
    EXPECT_THAT(collections.unreadArticlesCollectionEntity->entities(), IsEmpty());
    EXPECT_THAT(collections.savedArticlesCollectionEntity->entities(), IsEmpty());
}

TEST_F(CollectionEntityManagerTest, ACollectionIsRefreshedWhenEitherOfItsKeysIsTrueAndNoOther) {
    const std::vector<std::vector<std::string_view>> keys = {
        {preference::showTodayCollectionInMenu, preference::showTodayCollectionInFeedsBrowser},
        {preference::showUnreadCollectionInMenu, preference::showUnreadCollectionInFeedsBrowser},
        {preference::showSavedArticlesCollectionInMenu, preference::showSavedArticlesCollectionInFeedsBrowser}};
    showAll(false);
    for (std::size_t shown = 0; shown < keys.size(); ++shown) {
        for (const std::string_view key : keys[shown]) {
            feeds = makeManager();
            saved->savedArticles.clear();
            CollectionEntityManager collections = makeCollections();
            const auto item = add({{"a", "2020-01-02T10:00:00Z"}});
            saved->saveArticle(item->articles()[0]);
            defaults->set(key, true);
            collections.refreshCollections();
            defaults->removeObject(key);
            EXPECT_EQ(collections.todayCollectionEntity->entities().size(), shown == 0 ? 1U : 0U) << key;
            EXPECT_EQ(collections.unreadArticlesCollectionEntity->entities().size(), shown == 1 ? 1U : 0U) << key;
            EXPECT_EQ(collections.savedArticlesCollectionEntity->entities().size(), shown == 2 ? 1U : 0U) << key;
        }
    }
}

TEST_F(CollectionEntityManagerTest, ARefreshWithoutALibraryEndsTheProcess) {
    CollectionEntityManager collections = makeCollections();
    feeds.reset();
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH((removeFolder(), collections.todayCollectionEntity->refresh()), "Fatal error: The articles of today need a library");
    EXPECT_DEATH(
        (removeFolder(), collections.unreadArticlesCollectionEntity->refresh()), "Fatal error: The unread articles need a library");
}

TEST_F(CollectionEntityManagerTest, ARefreshWithoutTheSavedArticlesEndsTheProcess) {
    CollectionEntityManager collections = makeCollections();
    saved.reset();
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH((removeFolder(), collections.savedArticlesCollectionEntity->refresh()),
        "Fatal error: The collection of saved articles needs their manager");
}

} // namespace
} // namespace brindle
