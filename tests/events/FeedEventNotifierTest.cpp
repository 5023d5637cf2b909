#include "Brindle/events/FeedEventNotifier.hpp"
#include "tests/events/EventsFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FeedEventNotifierTest : public EventsTest {};

TEST_F(FeedEventNotifierTest, AnnouncesNewArticlesByBannerAndSpeech) {
    notifier->notifyNewArticles(feed, articles(1));
    ASSERT_THAT(banners->delivered, SizeIs(1));
    EXPECT_EQ(banners->delivered[0].title, "Example has new articles!");
    EXPECT_EQ(banners->delivered[0].informativeText, "Example has 1 new article.");
    EXPECT_THAT(banners->delivered[0].userInfo, IsEmpty());
    EXPECT_THAT(speech->log, ElementsAre("One: Example has 1 new article."));
}

TEST_F(FeedEventNotifierTest, CountsSeveralArticlesInThePlural) {
    notifier->notifyNewArticles(feed, articles(2));
    EXPECT_THAT(speech->log, ElementsAre("One: Example has 2 new articles."));
}

TEST_F(FeedEventNotifierTest, CountsUnreadArticlesOnly) {
    const Articles list = articles(3);
    list[1]->entry->setIsRead(true);
    notifier->notifyNewArticles(feed, list);
    EXPECT_THAT(speech->log, ElementsAre("One: Example has 2 new articles."));
}

TEST_F(FeedEventNotifierTest, SaysNothingOfArticlesThatAreAllRead) {
    const Articles list = articles(2);
    for (const auto& article : list)
        article->entry->setIsRead(true);
    notifier->notifyNewArticles(feed, list);
    EXPECT_THAT(banners->delivered, IsEmpty());
    EXPECT_THAT(speech->log, IsEmpty());
}

TEST_F(FeedEventNotifierTest, SaysNothingOfNewArticlesWhenThatIsUnwanted) {
    defaults->set(preference::notifyOnNewArticles, false);
    notifier->notifyNewArticles(feed, articles(1));
    EXPECT_THAT(banners->delivered, IsEmpty());
    EXPECT_THAT(speech->log, IsEmpty());
}

TEST_F(FeedEventNotifierTest, AnnouncesAFailureWhenThatIsWanted) {
    notifier->notifyError(feed);
    EXPECT_THAT(banners->delivered, IsEmpty());
    defaults->set(preference::notifyOnOtherError, true);
    notifier->notifyError(feed);
    ASSERT_THAT(banners->delivered, SizeIs(1));
    EXPECT_EQ(banners->delivered[0].title, "Example could not be updated because of an error.");
    EXPECT_EQ(banners->delivered[0].informativeText, "An error occured while accessing Example.");
    EXPECT_THAT(speech->log, ElementsAre("One: An error occured while accessing Example."));
}

TEST_F(FeedEventNotifierTest, NamesAFeedWithoutANameByNothing) {
    defaults->set(preference::notifyOnOtherError, true);
    notifier->notifyError(makeItem(""));
    EXPECT_EQ(banners->delivered.at(0).informativeText, "An error occured while accessing .");
}

TEST_F(FeedEventNotifierTest, ShowsNoBannersAndDoesNotSpeakUnlessAskedTo) {
    defaults->set(preference::useVisualNotifications, false);
    notifier->notifyNewArticles(feed, articles(1));
    EXPECT_THAT(banners->delivered, IsEmpty());
    EXPECT_EQ(banners->delegate.lock(), nullptr);
    EXPECT_THAT(speech->log, SizeIs(1));
    defaults->set(preference::useSpeechNotifications, false);
    defaults->set(preference::useVisualNotifications, true);
    notifier->notifyNewArticles(feed, articles(1));
    EXPECT_THAT(banners->delivered, SizeIs(1));
    EXPECT_THAT(speech->log, SizeIs(1));
}

TEST_F(FeedEventNotifierTest, OnlyFiltersWhenNeitherBannersNorSpeechAreWanted) {
    defaults->set(preference::useVisualNotifications, false);
    defaults->set(preference::useSpeechNotifications, false);
    notifier->notifyNewArticles(feed, articles(1));
    defaults->set(preference::notifyOnOtherError, true);
    notifier->notifyError(feed);
    EXPECT_THAT(banners->delivered, IsEmpty());
    EXPECT_EQ(banners->delegate.lock(), nullptr);
    EXPECT_THAT(speech->log, IsEmpty());
    EXPECT_EQ(madeSynthesizers, 0);
}

TEST_F(FeedEventNotifierTest, MakesItsVoiceForTheFirstMessage) {
    notifier->notifyVisually("Title", "Message");
    defaults->set(preference::useSpeechNotifications, false);
    notifier->notifySpeech("Unwanted");
    defaults->set(preference::useSpeechNotifications, true);
    EXPECT_EQ(madeSynthesizers, 0);
    notifier->notifySpeech("First");
    notifier->notifySpeech("Second");
    EXPECT_EQ(madeSynthesizers, 1);
}

TEST_F(FeedEventNotifierTest, SpeaksWithTheVoiceAtThePreferredPlace) {
    defaults->set(preference::speechVoiceIndex, std::int64_t{1});
    notifier->speak("Message");
    EXPECT_THAT(speech->log, ElementsAre("Two: Message"));
}

TEST_F(FeedEventNotifierTest, SpeaksMessagesThatCameMeanwhileInTheirOrder) {
    for (const char* message : {"First", "Second", "Third", "Fourth"})
        notifier->notifySpeech(message);
    EXPECT_THAT(speech->log, ElementsAre("One: First"));
    speech->finish();
    EXPECT_THAT(speech->log, ElementsAre("One: First", "One: Second"));
    speech->finish();
    speech->finish();
    EXPECT_THAT(speech->log, ElementsAre("One: First", "One: Second", "One: Third", "One: Fourth"));
    speech->finish();
    EXPECT_THAT(speech->log, SizeIs(4));
}

TEST_F(FeedEventNotifierTest, SpeaksWhatWaitsAlsoWhenSpeechWasTurnedOff) {
    notifier->notifySpeech("First");
    notifier->notifySpeech("Second");
    defaults->set(preference::useSpeechNotifications, false);
    speech->finish();
    EXPECT_THAT(speech->log, ElementsAre("One: First", "One: Second"));
}

TEST_F(FeedEventNotifierTest, PrintsAFeedThatABannerNames) {
    const Articles list = articles(1);
    notifier->notifyNewArticles(feed, list);
    const auto delegate = banners->delegate.lock();
    ASSERT_EQ(delegate, notifier);
    delegate->userNotificationCenterDidActivateNotification(banners->delivered[0]);
    EXPECT_THAT(lines, IsEmpty());
    delegate->userNotificationCenterDidActivateNotification({"", "", {{"feedIdentifier", "X"}}});
    EXPECT_THAT(lines, ElementsAre("Feed X was clicked!"));
}

TEST_F(FeedEventNotifierTest, SpeaksTheLanguageOfTheUser) {
    LocalizedStrings::set(
        {{"%@ has %d new %@.", "%@: %d %@ neu, 100 %"}, {"articles", "Artikel"}, {"Example has new articles!", "Neues!"}});
    notifier->notifyNewArticles(feed, articles(2));
    EXPECT_EQ(banners->delivered.at(0).title, "Neues!");
    EXPECT_EQ(banners->delivered.at(0).informativeText, "Example: 2 Artikel neu, 100 %");
}

TEST_F(FeedEventNotifierTest, TakesTheNameOfAFeedAsItIs) {
    notifier->notifyNewArticles(makeItem("100%@ %d"), articles(1));
    EXPECT_EQ(banners->delivered.at(0).informativeText, "100%@ %d has 1 new article.");
}

TEST_F(FeedEventNotifierTest, TitlesEveryKindOfEvent) {
    using Event = FeedEventNotifier::Event;
    EXPECT_EQ((Event{Event::Kind::newArticles, feed}).title(), "Example has new articles!");
    EXPECT_EQ((Event{Event::Kind::error, feed}).title(), "Example could not be updated because of an error.");
    EXPECT_EQ((Event{Event::Kind::authenticationRequest, feed}).title(), "Feed requested authentication.");
    EXPECT_EQ((Event{Event::Kind::attention, nullptr, {}, "Title", "Message"}).title(), "Title");
    EXPECT_EQ((Event{Event::Kind::custom, nullptr, {}, "Title", "Message"}).title(), "Title");
    LocalizedStrings::set({{"Title", "Titel"}});
    EXPECT_EQ((Event{Event::Kind::custom, nullptr, {}, "Title", "Message"}).title(), "Titel");
}

class FeedEventNotifierDeathTest : public EventsTest {};

TEST_F(FeedEventNotifierDeathTest, KnowsNoVoiceBeyondTheList) {
    defaults->set(preference::speechVoiceIndex, std::int64_t{2});
    EXPECT_DEATH(notifier->speak("Message"), "Fatal error: The voice to speak with is beyond the list of voices");
}

TEST_F(FeedEventNotifierDeathTest, KnowsNoVoiceBeforeTheList) {
    defaults->set(preference::speechVoiceIndex, std::int64_t{-1});
    EXPECT_DEATH(notifier->speak("Message"), "Fatal error: The voice to speak with is beyond the list of voices");
}

} // namespace
} // namespace brindle
