#include "Brindle/library/FeedItem.hpp"

#include "foundation/RunLoop.hpp"
#include "tests/fakes/DecoderFake.hpp"
#include "tests/library/LibraryFixture.hpp"
#include "tests/support/MainLoop.hpp"

#include <gmock/gmock.h>
#include <limits>
#include <thread>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

constexpr std::chrono::hours day{24};

class FeedItemTest : public LibraryTest {
protected:
    static SyndicatedSessionError error(SyndicatedSessionError::Case kind, std::optional<URLError> underlying = std::nullopt) {
        return {kind, std::move(underlying)};
    }

    static DecoderFake stored() {
        DecoderFake decoder;
        decoder.texts = {{"feedName", "Stored"}, {"feedURL", "http://a.invalid/feed"}, {"feedUsername", "user"},
            {"feedUUID", "C0FFEE00-1234-4321-8888-0123456789AB"}};
        decoder.integers = {{"feedRefreshrate", 5}};
        return decoder;
    }
};

TEST_F(FeedItemTest, StartsEmptyAndAtRest) {
    const auto item = FeedItem::make("Name", url("http://a.invalid/feed"), 7, "user", "secret", environment);
    EXPECT_EQ(item->kind, Feed::Kind::item);
    EXPECT_EQ(item->name(), "Name");
    EXPECT_EQ(item->url(), url("http://a.invalid/feed"));
    EXPECT_EQ(item->updateRate, 7);
    EXPECT_EQ(item->username, "user");
    EXPECT_EQ(item->password, "secret");
    EXPECT_THAT(item->articles(), IsEmpty());
    EXPECT_EQ(item->data, "");
    EXPECT_THAT(item->articleStateCache, IsEmpty());
    EXPECT_FALSE(item->feedImageData());
    EXPECT_FALSE(item->hasTimer());
    EXPECT_FALSE(item->session().isQueued());
    EXPECT_NE(item->uuid, makeItem()->uuid);
}

TEST_F(FeedItemTest, IsCalledByTheTitleOfItsFeedWhileItHasNoNameOfItsOwn) {
    const auto item = makeItem("");
    EXPECT_EQ(item->name(), "");
    parse(*item, rss({}, "Title"));
    EXPECT_EQ(item->name(), "Title");
    item->setName("Own");
    EXPECT_EQ(item->name(), "Own");
}

TEST_F(FeedItemTest, WritesItsDisplayNameAddressRateUserAndIdentity) {
    const auto item = makeItem("");
    item->username = "user";
    item->password = "secret";
    item->uuid = *UUID::make("c0ffee00-1234-4321-8888-0123456789ab");
    parse(*item, rss({}, "Title"));
    CoderFake coder;
    item->encode(coder);
    EXPECT_THAT(coder.keys, ElementsAre("feedName", "feedURL", "feedRefreshrate", "feedUsername", "feedUUID"));
    EXPECT_EQ(coder.fields.texts["feedName"], "Title");
    EXPECT_EQ(coder.fields.texts["feedURL"], "http://127.0.0.1/feed.xml");
    EXPECT_EQ(coder.fields.integers["feedRefreshrate"], 30);
    EXPECT_EQ(coder.fields.texts["feedUsername"], "user");
    EXPECT_EQ(coder.fields.texts["feedUUID"], "C0FFEE00-1234-4321-8888-0123456789AB");
    EXPECT_THAT(item->archiveClasses(), ElementsAre("FeedItem", "Feed"));
}

TEST_F(FeedItemTest, DecodesWhatItWrote) {
    const auto item = FeedItem::decode(stored(), environment);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->name(), "Stored");
    EXPECT_EQ(item->url(), url("http://a.invalid/feed"));
    EXPECT_EQ(item->updateRate, 5);
    EXPECT_EQ(item->username, "user");
    EXPECT_EQ(item->uuid.uuidString(), "C0FFEE00-1234-4321-8888-0123456789AB");
    EXPECT_EQ(item->password, "");
    EXPECT_FALSE(item->hasTimer());
}

TEST_F(FeedItemTest, DecodesWithDefaultsForWhatMayBeMissing) {
    DecoderFake decoder;
    decoder.texts = {{"feedName", ""}, {"feedURL", "http://a.invalid/feed"}, {"feedUUID", "no identity"}};
    const auto item = FeedItem::decode(decoder, environment);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->updateRate, 30);
    EXPECT_EQ(item->username, "");
    EXPECT_NE(item->uuid, UUID());
}

TEST_F(FeedItemTest, DoesNotDecodeWithoutANameOrAnAddress) {
    DecoderFake decoder = stored();
    decoder.texts.erase("feedName");
    EXPECT_EQ(FeedItem::decode(decoder, environment), nullptr);
    decoder = stored();
    decoder.texts.erase("feedURL");
    EXPECT_EQ(FeedItem::decode(decoder, environment), nullptr);
    decoder = stored();
    decoder.texts["feedURL"] = "not a url";
    EXPECT_EQ(FeedItem::decode(decoder, environment), nullptr);
}

TEST_F(FeedItemTest, ReportsEveryEntryOfAFirstParseAsNewInTheOrderOfTheDocument) {
    const auto item = makeItem();
    const std::string document = rss({{"B", "http://a.invalid/b"}, {"A", "http://a.invalid/a"}, {"C", ""}});
    const auto call = parse(*item, document);
    EXPECT_EQ(call.name, "feedItemDidFinishParsing");
    EXPECT_EQ(call.feedItem, item.get());
    EXPECT_EQ(call.newArticles, item->articles());
    EXPECT_THAT(titles(item->articles()), ElementsAre("B", "A", "C"));
    for (const auto& article : item->articles())
        EXPECT_EQ(article->feedItem.lock(), item);
    EXPECT_THAT(item->articleStateCache,
        UnorderedElementsAre(std::pair("B&http://a.invalid/b", 0), std::pair("A&http://a.invalid/a", 0), std::pair("C&", 0)));
    EXPECT_NE(item->data, "");
    EXPECT_EQ(item->data, item->session().feed()->data);
}

TEST_F(FeedItemTest, ReportsNothingNewForWhatItHasSeen) {
    const auto item = makeItem();
    parse(*item, rss({{"A", "http://a.invalid/a"}}));
    const auto call = parse(*item, rss({{"B", "http://a.invalid/b"}, {"A", "http://a.invalid/a"}}));
    EXPECT_THAT(titles(call.newArticles), ElementsAre("B"));
    EXPECT_THAT(titles(item->articles()), ElementsAre("B", "A"));
}

TEST_F(FeedItemTest, TakesOnlyTheValueOneForRead) {
    const auto item = makeItem();
    item->articleStateCache = {{"0&", 0}, {"1&", 1}, {"2&", 2}, {"-1&", -1}};
    parse(*item, rss({{"0", ""}, {"1", ""}, {"2", ""}, {"-1", ""}}));
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::read)), ElementsAre("1"));
    EXPECT_THAT(
        item->articleStateCache, UnorderedElementsAre(std::pair("0&", 0), std::pair("1&", 1), std::pair("2&", 0), std::pair("-1&", 0)));
}

TEST_F(FeedItemTest, TakesADocumentWithoutEntriesForItsNewContent) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const ColdBytes first = item->data;
    const auto call = parse(*item, rss({}));
    EXPECT_EQ(call.name, "feedItemDidFinishParsing");
    EXPECT_THAT(call.newArticles, IsEmpty());
    EXPECT_THAT(item->articles(), IsEmpty());
    EXPECT_NE(item->data, "");
    EXPECT_NE(item->data, first);
}

TEST_F(FeedItemTest, KeepsTheStateOfAnArticleThatComesBack) {
    const auto item = makeItem();
    parse(*item, rss({{"A", "http://a.invalid/a"}}));
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    parse(*item, rss({{"B", "http://a.invalid/b"}}));
    EXPECT_THAT(titles(item->articles()), ElementsAre("B"));
    const auto call = parse(*item, rss({{"A", "http://a.invalid/a"}}));
    EXPECT_THAT(call.newArticles, IsEmpty());
    EXPECT_TRUE(item->articles()[0]->entry->isRead());
}

TEST_F(FeedItemTest, SharesOneStateBetweenArticlesWithOneKeyFromTheNextMergeOn) {
    const auto item = makeItem();
    const std::string document = rss({{"A", "http://a.invalid/a"}, {"A", "http://a.invalid/a"}});
    EXPECT_THAT(parse(*item, document).newArticles, SizeIs(2));
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    EXPECT_THAT(item->articlesWithState(ArticleStateFilter::unread), SizeIs(1));
    EXPECT_THAT(parse(*item, document).newArticles, IsEmpty());
    EXPECT_THAT(item->articlesWithState(ArticleStateFilter::read), SizeIs(2));
}

TEST_F(FeedItemTest, TakesArticlesWithoutALinkAndWithOneTitleForOne) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}, {"A", ""}}));
    EXPECT_THAT(item->articleStateCache, UnorderedElementsAre(std::pair("A&", 0)));
}

TEST_F(FeedItemTest, TakesAnEditedTitleForANewArticleAndKeepsTheOldKey) {
    const auto item = makeItem();
    parse(*item, rss({{"A", "http://a.invalid/a"}}));
    EXPECT_THAT(titles(parse(*item, rss({{"Edited", "http://a.invalid/a"}})).newArticles), ElementsAre("Edited"));
    EXPECT_EQ(item->articleStateCache.count("A&http://a.invalid/a"), 1U);
}

TEST_F(FeedItemTest, TakesAReadEntryWithANewLinkForANewArticleThatIsRead) {
    const auto item = makeItem();
    const auto document = [](const std::string& link, const std::string& date) {
        return "<rss><channel><item><title>A</title><guid>1</guid><link>" + link + "</link><pubDate>" + date +
               " Jun 2020 10:00:00 GMT</pubDate></item></channel></rss>";
    };
    parse(*item, document("http://a.invalid/1", "Mon, 01"));
    item->markArticle(*item->articles()[0], ArticleStateFilter::read);
    const auto call = parse(*item, document("http://a.invalid/2", "Tue, 02"));
    EXPECT_THAT(titles(call.newArticles), ElementsAre("A"));
    EXPECT_TRUE(item->articles()[0]->entry->isRead());
    EXPECT_THAT(item->articleStateCache, UnorderedElementsAre(std::pair("A&http://a.invalid/1", 1), std::pair("A&http://a.invalid/2", 1)));
}

TEST_F(FeedItemTest, LeavesAListThatWasReadEarlierValid) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const auto earlier = item->articles();
    parse(*item, rss({{"B", ""}}));
    EXPECT_THAT(titles(earlier), ElementsAre("A"));
    EXPECT_EQ(earlier[0]->feedItem.lock(), item);
}

TEST_F(FeedItemTest, MergesWithoutADelegate) {
    const auto item = makeItem();
    item->delegate.reset();
    item->session().start(rss({{"A", ""}}));
    EXPECT_TRUE(runMainLoop([&] { return !item->articles().empty(); }));
    EXPECT_THAT(delegate->calls, IsEmpty());
}

TEST_F(FeedItemTest, FiltersItsArticlesByState) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}, {"B", ""}, {"C", ""}}));
    item->markArticle(*item->articles()[1], ArticleStateFilter::read);
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::unread)), ElementsAre("A", "C"));
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::read)), ElementsAre("B"));
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::any)), ElementsAre("A", "B", "C"));
}

TEST_F(FeedItemTest, MarksAnArticleAndRemembersItsState) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const auto& article = item->articles()[0];
    item->markArticle(*article, ArticleStateFilter::read);
    EXPECT_TRUE(article->entry->isRead());
    EXPECT_EQ(item->articleStateCache["A&"], 1);
    item->markArticle(*article, ArticleStateFilter::unread);
    EXPECT_FALSE(article->entry->isRead());
    EXPECT_EQ(item->articleStateCache["A&"], 0);
}

TEST_F(FeedItemTest, MarksNothingWithAnyAndNothingThatIsSoAlready) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    item->articleStateCache.clear();
    item->markArticle(*item->articles()[0], ArticleStateFilter::any);
    item->markArticle(*item->articles()[0], ArticleStateFilter::unread);
    EXPECT_FALSE(item->articles()[0]->entry->isRead());
    EXPECT_THAT(item->articleStateCache, IsEmpty());
}

TEST_F(FeedItemTest, NamesItsFilters) {
    EXPECT_EQ(name(ArticleStateFilter::unread), "unread");
    EXPECT_EQ(name(ArticleStateFilter::read), "read");
    EXPECT_EQ(name(ArticleStateFilter::any), "any");
}

TEST_F(FeedItemTest, ReportsTheUnderlyingErrorOfAConnectionThatFailedWithNothingStored) {
    const auto item = makeItem();
    item->syndicatedSessionDidFail(
        item->session(), error(SyndicatedSessionError::Case::connection, URLError{URLError::Code::timedOut, "It took too long."}));
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_EQ(delegate->calls[0].name, "feedItemDidFail");
    ASSERT_TRUE(delegate->calls[0].error);
    EXPECT_EQ(std::get<URLError>(*delegate->calls[0].error).code, URLError::Code::timedOut);
    EXPECT_THAT(takeLines(), ElementsAre("A connection error occured: It took too long."));
}

TEST_F(FeedItemTest, ReportsNoErrorWhenAFailedConnectionHasNone) {
    const auto item = makeItem("");
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::connection));
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_FALSE(delegate->calls[0].error);
    EXPECT_THAT(takeLines(), ElementsAre("A connection error occured: unknown"));
    EXPECT_EQ(item->name(), "");
}

TEST_F(FeedItemTest, ParsesTheStoredDocumentAgainAfterAFailedConnectionAndReportsNoFailure) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const auto restarted = makeItem();
    restarted->data = item->data;
    restarted->articleStateCache = item->articleStateCache;
    const std::size_t before = delegate->calls.size();
    restarted->syndicatedSessionDidFail(restarted->session(), error(SyndicatedSessionError::Case::connection));
    EXPECT_THAT(restarted->articles(), IsEmpty());
    const auto call = nextCall(before);
    EXPECT_EQ(call.name, "feedItemDidFinishParsing");
    EXPECT_THAT(call.newArticles, IsEmpty());
    EXPECT_THAT(titles(restarted->articles()), ElementsAre("A"));
    EXPECT_EQ(restarted->data, restarted->session().feed()->data);
}

TEST_F(FeedItemTest, RemembersThatItsConnectionFailedUntilItFetchesAgain) {
    const auto item = makeItem();
    EXPECT_FALSE(item->lastConnectionFailed());
    item->data = rss({{"A", ""}});
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::connection));
    nextCall(0);
    EXPECT_TRUE(item->lastConnectionFailed());
    item->parse();
    EXPECT_FALSE(item->lastConnectionFailed());
}

TEST_F(FeedItemTest, ReportsAsNewFromTheStoredDocumentWhatItsTableDoesNotKnow) {
    const auto item = makeItem();
    item->data = rss({{"A", ""}});
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::connection));
    EXPECT_THAT(titles(nextCall(0).newArticles), ElementsAre("A"));
}

TEST_F(FeedItemTest, ReportsEveryOtherFailureAsItIsAndKeepsItsArticles) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const ColdBytes data = item->data;
    using Case = SyndicatedSessionError::Case;
    for (const Case kind : {Case::other, Case::noData, Case::noURL, Case::invalidFeed}) {
        item->syndicatedSessionDidFail(item->session(), error(kind));
        ASSERT_TRUE(delegate->calls.back().error);
        EXPECT_EQ(std::get<SyndicatedSessionError>(*delegate->calls.back().error).kind, kind);
    }
    EXPECT_THAT(titles(item->articles()), ElementsAre("A"));
    EXPECT_EQ(item->data, data);
    EXPECT_THAT(item->articleStateCache, SizeIs(1));
    EXPECT_EQ(item->name(), "Name");
}

TEST_F(FeedItemTest, IsCalledByItsHostAfterAFirstFetchThatFailed) {
    const auto item = makeItem("", "http://news.invalid:8080/feed");
    EXPECT_EQ(parse(*item, "no feed at all").name, "feedItemDidFail");
    EXPECT_EQ(item->name(), "news.invalid");
}

TEST_F(FeedItemTest, KeepsTheTitleOfItsFeedForNameWhenAFetchFails) {
    const auto item = makeItem("");
    parse(*item, rss({}, "Title"));
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::noData));
    EXPECT_EQ(item->name(), "Title");
}

TEST_F(FeedItemTest, KeepsAnEmptyNameWhenItsAddressHasNoHost) {
    const auto item = makeItem("", "relative/feed");
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::invalidFeed));
    EXPECT_EQ(item->name(), "");
    EXPECT_THAT(delegate->calls, SizeIs(1));
}

TEST_F(FeedItemTest, FailsInSilenceWhenItsDelegateIsGone) {
    const auto item = makeItem("", "http://news.invalid/");
    delegate.reset();
    item->syndicatedSessionDidFail(item->session(), error(SyndicatedSessionError::Case::invalidFeed));
    EXPECT_EQ(item->name(), "news.invalid");
}

TEST_F(FeedItemTest, GivesNoCredentialAndCancelsEveryChallenge) {
    const auto item = FeedItem::make("", url("http://a.invalid/"), 30, "user", "secret", environment);
    EXPECT_FALSE(item->syndicatedSessionCredential(item->session()));
    EXPECT_TRUE(item->syndicatedSessionShouldCancelAuthentication(item->session()));
}

TEST_F(FeedItemTest, IsInvalidOnlyForAnUnknownKind) {
    const auto item = makeItem();
    item->syndicatedSessionDidDetectKind(item->session(), SyndicatedFeedKind::opml);
    EXPECT_THAT(delegate->calls, IsEmpty());
    item->syndicatedSessionDidDetectKind(item->session(), SyndicatedFeedKind::unknown);
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_EQ(delegate->calls[0].name, "feedItemIsInvalid");
}

TEST_F(FeedItemTest, OffersTheDiscoveredFeedsThatHaveAnAddress) {
    const auto item = makeItem();
    EXPECT_TRUE(item->syndicatedSessionShouldDiscoverFeeds());
    const auto feed = [&](const std::string& title, const std::optional<URL>& address) {
        auto made = std::make_shared<SyndicatedFeed>(SyndicatedFeedKind::rss, clock->now());
        made->title = title;
        made->links.emplace_back();
        made->links.back().url = address;
        return made;
    };
    item->syndicatedSessionDidDiscoverFeeds(
        item->session(), {feed("1", url("http://a.invalid/1")), feed("2", std::nullopt), feed("3", url("http://a.invalid/3"))});
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_EQ(delegate->calls[0].name, "feedItemDidDiscoverFeedItems");
    const auto& found = delegate->calls[0].feedItems;
    ASSERT_THAT(found, SizeIs(2));
    EXPECT_EQ(found[0]->name(), "1");
    EXPECT_EQ(found[1]->name(), "3");
    EXPECT_EQ(found[1]->url(), url("http://a.invalid/3"));
    EXPECT_EQ(found[1]->updateRate, 30);
    EXPECT_EQ(found[1]->username, "");
    EXPECT_EQ(found[1]->delegate.lock(), nullptr);
    EXPECT_FALSE(found[1]->hasTimer());
}

TEST_F(FeedItemTest, OffersAnEmptyListToo) {
    const auto item = makeItem();
    item->syndicatedSessionDidDiscoverFeeds(item->session(), {});
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_EQ(delegate->calls[0].name, "feedItemDidDiscoverFeedItems");
    EXPECT_THAT(delegate->calls[0].feedItems, IsEmpty());
}

TEST_F(FeedItemTest, LooksForAnIconAtEachUpdateUntilOneWasFound) {
    const auto item = makeItem();
    EXPECT_TRUE(item->syndicatedSessionShouldDiscoverIcon());
    item->setFeedImageData("stored");
    EXPECT_TRUE(item->syndicatedSessionShouldDiscoverIcon());
    item->syndicatedSessionDidDiscoverIcon(item->session(), "found");
    EXPECT_FALSE(item->syndicatedSessionShouldDiscoverIcon());
}

TEST_F(FeedItemTest, LooksForAnIconAgainSevenDaysLaterOnlyWhenItHoldsNone) {
    const auto item = makeItem();
    item->syndicatedSessionDidDiscoverIcon(item->session(), "found");
    clock->advance(8 * day);
    EXPECT_FALSE(item->syndicatedSessionShouldDiscoverIcon());
    item->setFeedImageData(std::nullopt);
    EXPECT_TRUE(item->syndicatedSessionShouldDiscoverIcon());
}

TEST_F(FeedItemTest, CountsTheSevenDaysToTheMicrosecond) {
    const auto item = makeItem();
    item->syndicatedSessionDidDiscoverIcon(item->session(), "found");
    item->setFeedImageData(std::nullopt);
    clock->advance(7 * day - std::chrono::microseconds(1));
    EXPECT_FALSE(item->syndicatedSessionShouldDiscoverIcon());
    clock->advance(std::chrono::microseconds(1));
    EXPECT_TRUE(item->syndicatedSessionShouldDiscoverIcon());
}

TEST_F(FeedItemTest, HoldsAFoundIconAndTellsOfIt) {
    const auto item = makeItem();
    item->syndicatedSessionDidDiscoverIcon(item->session(), std::string("\0icon", 5));
    EXPECT_EQ(item->feedImageData(), std::string("\0icon", 5));
    ASSERT_THAT(delegate->calls, SizeIs(1));
    EXPECT_EQ(delegate->calls[0].name, "feedItemHasImageData");
    item->syndicatedSessionDidEndIconStep(item->session());
    EXPECT_EQ(delegate->endedIconSteps, 1U);
}

TEST_F(FeedItemTest, FetchesAtOnceOnlyWhenToldTo) {
    // With no network a fetch that was asked for waits, which shows.
    const auto item = makeItem();
    item->scheduleUpdates(false);
    EXPECT_TRUE(item->hasTimer());
    EXPECT_FALSE(item->session().isQueued());
    item->scheduleUpdates(true);
    EXPECT_TRUE(item->session().isQueued());
}

TEST_F(FeedItemTest, FetchesFirstAfterAWholeInterval) {
    const auto item = makeItem();
    item->updateRate = 2;
    item->scheduleUpdates(false);
    time->advance(std::chrono::seconds(119));
    RunLoop::main().runPending();
    EXPECT_FALSE(item->session().isQueued());
    time->advance(std::chrono::seconds(1));
    RunLoop::main().runPending();
    EXPECT_TRUE(item->session().isQueued());
    EXPECT_TRUE(item->hasTimer());
}

TEST_F(FeedItemTest, TakesUpAChangedRateOnlyWhenScheduledAnew) {
    const auto item = makeItem();
    item->scheduleUpdates(false);
    const auto deadline = RunLoop::main().nextDeadline();
    EXPECT_EQ(deadline, time->now() + std::chrono::minutes(30));
    item->updateRate = 1;
    EXPECT_EQ(RunLoop::main().nextDeadline(), deadline);
    item->scheduleUpdates(false);
    EXPECT_EQ(RunLoop::main().nextDeadline(), time->now() + std::chrono::minutes(1));
}

TEST_F(FeedItemTest, NeverFiresAgainOnceItsTimerIsInvalidated) {
    const auto item = makeItem();
    item->scheduleUpdates(false);
    item->invalidateTimer();
    EXPECT_FALSE(item->hasTimer());
    EXPECT_EQ(RunLoop::main().nextDeadline(), RunLoop::Time::max());
}

TEST_F(FeedItemTest, EndsTheProcessForARateThatDoesNotFit) {
    const auto item = makeItem();
    item->updateRate = std::numeric_limits<std::int64_t>::max() / 60 + 1;
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH((removeFolder(), item->scheduleUpdates(false)), "Fatal error: ");
}

TEST_F(FeedItemTest, EndsItsTimerAndTellsOfItsEnd) {
    auto item = makeItem("");
    parse(*item, rss({}, "Title"));
    item->scheduleUpdates(false);
    takeLines();
    item.reset();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItem: Title"));
    EXPECT_EQ(RunLoop::main().nextDeadline(), RunLoop::Time::max());
}

TEST_F(FeedItemTest, EndsWithItsArticlesBeforeItTellsOfItsEnd) {
    auto item = makeItem("Name");
    parse(*item, rss({{"A", ""}, {"B", ""}}));
    delegate->calls.clear();
    takeLines();
    item.reset();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItemArticle", "Removing FeedItemArticle", "Removing FeedItem: Name"));
}

TEST_F(FeedItemTest, EndsTheArticlesOfTheParseBefore) {
    const auto item = makeItem();
    parse(*item, rss({{"A", ""}}));
    const auto held = item->articles();
    parse(*item, rss({{"B", ""}}));
    delegate->calls.clear();
    takeLines();
    parse(*item, rss({{"C", ""}}));
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItemArticle")) << "the first is held by others";
}

TEST_F(FeedItemTest, EndsOnTheMainThreadWhereverItIsLetGoLast) {
    auto item = makeItem("Last");
    takeLines();
    std::thread([held = std::move(item)]() mutable { held.reset(); }).join();
    EXPECT_THAT(takeLines(), IsEmpty());
    RunLoop::main().runPending();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItem: Last"));
}

} // namespace
} // namespace brindle
