#include "Brindle/events/UISyncDispatcher.hpp"
#include "foundation/NotificationCenter.hpp"
#include "tests/events/EventsFixture.hpp"
#include "tests/fakes/ImageDecoderFake.hpp"
#include "tests/fakes/InterfaceRefresherFake.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Notes the order of refreshes and notices in one list.
class UISyncDispatcherTest : public EventsTest {
protected:
    UISyncDispatcherTest() {
        NotificationCenter& center = NotificationCenter::defaultCenter();
        articlesObserver =
            center.addObserver("UISyncDispatcherDidReceiveNewArticlesNotification", feed.get(), [this](const Notification& notice) {
                log.push_back(notice.value<bool>("newArticles").value() ? "new articles" : "no new articles");
            });
        imageObserver = center.addObserver("UISyncDispatcherDidUpdateFeedItemImage", feed.get(),
            [this](const Notification& notice) { log.push_back("image " + notice.value<Image>("image").value().data()); });
        dispatcher.onFailure = [this] { log.emplace_back("failure"); };
    }

    std::shared_ptr<InterfaceRefresherFake> refresher = std::make_shared<InterfaceRefresherFake>();
    std::shared_ptr<ImageDecoderFake> decoder = std::make_shared<ImageDecoderFake>();
    UISyncDispatcher dispatcher{notifier, refresher, decoder};
    std::vector<std::string>& log = *refresher->log;
    NotificationCenter::Token articlesObserver;
    NotificationCenter::Token imageObserver;
};

TEST_F(UISyncDispatcherTest, RefreshesTheCollectionsBeforeTheMenu) {
    dispatcher.refreshInterface();
    EXPECT_THAT(log, ElementsAre("refreshCollections", "updateMenu"));
}

TEST_F(UISyncDispatcherTest, AnnouncesNewArticlesRefreshesAndThenTellsTheWindows) {
    dispatcher.feedItemDidFinishParsing(*feed, articles(2));
    EXPECT_THAT(log, ElementsAre("refreshCollections", "updateMenu", "new articles"));
    EXPECT_THAT(speech->log, ElementsAre("One: Example has 2 new articles."));
}

TEST_F(UISyncDispatcherTest, RefreshesAndTellsTheWindowsAlsoWithoutNewArticles) {
    dispatcher.feedItemDidFinishParsing(*feed, {});
    EXPECT_THAT(log, ElementsAre("refreshCollections", "updateMenu", "no new articles"));
    EXPECT_THAT(banners->delivered, IsEmpty());
}

TEST_F(UISyncDispatcherTest, CallsArticlesNewThatAreNotAnnounced) {
    const Articles list = articles(1);
    list[0]->entry->setIsRead(true);
    dispatcher.feedItemDidFinishParsing(*feed, list);
    EXPECT_THAT(log, ElementsAre("refreshCollections", "updateMenu", "new articles"));
    EXPECT_THAT(banners->delivered, IsEmpty());
}

TEST_F(UISyncDispatcherTest, AnnouncesAFailureAndTellsItWithoutARefresh) {
    defaults->set(preference::notifyOnOtherError, true);
    dispatcher.feedItemDidFail(*feed, std::nullopt);
    EXPECT_THAT(banners->delivered, SizeIs(1));
    EXPECT_THAT(log, ElementsAre("failure"));
}

TEST_F(UISyncDispatcherTest, DropsWhatDiscoveryFindsAndInvalidFeeds) {
    dispatcher.feedItemDidDiscoverFeedItems(*feed, {makeItem("Other")});
    dispatcher.feedItemIsInvalid(*feed);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(banners->delivered, IsEmpty());
}

TEST_F(UISyncDispatcherTest, RefreshesForAnIconAndThenTellsTheWindows) {
    feed->setFeedImageData("icon");
    dispatcher.feedItemHasImageData(*feed);
    EXPECT_THAT(log, ElementsAre("refreshCollections", "updateMenu", "image icon"));
}

TEST_F(UISyncDispatcherTest, DropsIconsThatAreNoImages) {
    feed->setFeedImageData("bad");
    dispatcher.feedItemHasImageData(*feed);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(feed->feedImageData(), "bad");
}

TEST_F(UISyncDispatcherTest, DoesNotLookIntoAnIconWithoutBytes) {
    dispatcher.feedItemHasImageData(*feed);
    feed->setFeedImageData("");
    dispatcher.feedItemHasImageData(*feed);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(decoder->log, IsEmpty());
}

TEST_F(UISyncDispatcherTest, GathersNothing) {
    for (int i = 0; i < 3; ++i)
        dispatcher.feedItemDidFinishParsing(*feed, {});
    EXPECT_THAT(log, SizeIs(9));
}

TEST_F(UISyncDispatcherTest, HandsTheFeedItselfToTheWindows) {
    std::vector<std::shared_ptr<Object>> objects;
    std::vector<NotificationCenter::Token> tokens;
    for (const auto name : {UISyncDispatcher::didReceiveNewArticlesNotification, UISyncDispatcher::didUpdateFeedItemImageNotification}) {
        tokens.push_back(NotificationCenter::defaultCenter().addObserver(name, nullptr,
            [&](const Notification& notice) { objects.push_back(notice.value<std::shared_ptr<Object>>("object").value_or(nullptr)); }));
    }
    feed->setFeedImageData("icon");
    dispatcher.feedItemDidFinishParsing(*feed, {});
    dispatcher.feedItemHasImageData(*feed);
    EXPECT_THAT(objects, ElementsAre(feed, feed));
}

class UISyncDispatcherDeathTest : public UISyncDispatcherTest {};

TEST_F(UISyncDispatcherDeathTest, NeedsAnApplication) {
    refresher.reset();
    EXPECT_DEATH(dispatcher.refreshInterface(), "Fatal error: A feed reports to an application without an interface");
    notifier.reset();
    EXPECT_DEATH(dispatcher.feedItemDidFail(*feed, std::nullopt), "Fatal error: A feed reports to an application without a notifier");
}

} // namespace
} // namespace brindle
