#include "cli/AnnouncedEvents.hpp"

#include "Brindle/shell/Preferences.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "tests/fakes/FeedItemDelegateFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

class AnnouncedEventsTest : public ::testing::Test {
protected:
    AnnouncedEventsTest() {
        Console::redirect([](std::string_view) {});
        registerDefaults(*defaults);
        const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
        manager = std::make_shared<FeedsManager>(folder.path(), environment, next);
        feed = FeedItem::make("Feed", URL::make("http://127.0.0.1/").value(), FeedItem::defaultUpdateRate, {}, {}, environment);
        events = std::make_shared<AnnouncedEvents>(EventLog::open(log).value(), manager, defaults, next);
    }
    ~AnnouncedEventsTest() override {
        feed.reset();
        Console::redirect({});
    }

    std::string logged() const { return FileManager::contents(log).value(); }

    TemporaryFolder folder;
    std::filesystem::path log = folder.path() / "log";
    std::shared_ptr<UserDefaults> defaults = std::make_shared<UserDefaults>(folder.path() / "Preferences.plist");
    std::shared_ptr<FeedItemDelegateFake> next = std::make_shared<FeedItemDelegateFake>();
    std::shared_ptr<FeedsManager> manager;
    std::shared_ptr<FeedItem> feed;
    std::shared_ptr<AnnouncedEvents> events;
};

TEST_F(AnnouncedEventsTest, TellsOfAnIconThatIsAnImage) {
    using namespace std::string_literals;
    const std::string expected = R"({"event":"badge","label":""})"
                                 "\n"
                                 R"({"event":"notification","name":"UISyncDispatcherDidUpdateFeedItemImage","feed":")" +
                                 feed->uuid.uuidString() + "\"}\n";
    std::string all;
    for (const std::string& icon :
        {"GIF87a"s, "GIF89a"s, "\x89PNG\r\n\x1A\n"s, "\xFF\xD8\xFF\xE0"s, "BM"s, "\0\0\1\0\1"s, "\0\0\2\0"s, "RIFF\1\2\3\4WEBPVP8 "s}) {
        feed->setFeedImageData(icon);
        events->feedItemHasImageData(*feed);
        all += expected;
        EXPECT_EQ(logged(), all) << icon;
    }
}

TEST_F(AnnouncedEventsTest, TellsNothingOfAnIconThatIsNone) {
    for (const char* icon : {"", "no image", "<html/>", "RIFF", "RIFF1234WAVEfmt ", "GIF88a", "PNG"}) {
        feed->setFeedImageData(icon);
        events->feedItemHasImageData(*feed);
        EXPECT_EQ(logged(), "") << icon;
    }
}

TEST_F(AnnouncedEventsTest, PassesEachReportOn) {
    events->feedItemDidFinishParsing(*feed, {});
    events->feedItemDidDiscoverFeedItems(*feed, {});
    events->feedItemDidFail(*feed, std::nullopt);
    events->feedItemHasImageData(*feed);
    events->feedItemIsInvalid(*feed);
    events->feedItemDidEndIconStep(*feed);
    std::string names;
    for (const auto& call : next->calls)
        names += call.name + ' ';
    EXPECT_EQ(names, "feedItemDidFinishParsing feedItemDidDiscoverFeedItems feedItemDidFail feedItemHasImageData feedItemIsInvalid ");
    EXPECT_EQ(next->endedIconSteps, 1U);
}

TEST_F(AnnouncedEventsTest, StopsToListenWhenItEnds) {
    events.reset();
    NotificationCenter::defaultCenter().post(UISyncDispatcher::didReceiveNewArticlesNotification, feed.get(), {{"newArticles", true}});
    EXPECT_EQ(logged(), "");
}

} // namespace
} // namespace brindle
