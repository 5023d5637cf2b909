#include "cli/FeedAnswers.hpp"

#include "foundation/Console.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"

#include <gtest/gtest.h>

namespace brindle {

class FeedAnswersTest : public ::testing::Test {
protected:
    FeedAnswersTest() {
        Console::redirect([](std::string_view) {});
    }
    ~FeedAnswersTest() override { Console::redirect({}); }

    std::shared_ptr<FeedItem> makeItem() {
        const auto item = FeedItem::make("Name", *URL::make("http://127.0.0.1/feed"), 30, {}, {}, environment);
        item->delegate = answers;
        return item;
    }

    static constexpr std::chrono::seconds limit{60};
    const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), std::make_shared<NetworkRouteFake>(0), nullptr};
    const std::shared_ptr<FeedAnswers> answers = std::make_shared<FeedAnswers>();
};

TEST_F(FeedAnswersTest, AFeedThatWaitsForTheNetworkIsQueued) {
    const auto item = makeItem();
    item->parse();
    answers->expect(*item);
    answers->wait(limit);
    EXPECT_EQ(answers->answer(*item).outcome, FeedAnswers::Outcome::queued);
}

TEST_F(FeedAnswersTest, AFeedThatComesToWaitForTheNetworkOnItsWayIsQueued) {
    const auto item = makeItem();
    item->session().start(R"(<html><link rel="alternate" type="application/rss+xml" href="http://127.0.0.1/rss"/></html>)");
    answers->expect(*item);
    answers->wait(limit);
    EXPECT_EQ(answers->answer(*item).outcome, FeedAnswers::Outcome::queued);
}

TEST_F(FeedAnswersTest, TheFirstAnswerCounts) {
    const auto item = makeItem();
    item->session().start("<feed/>");
    answers->expect(*item);
    answers->wait(limit);
    answers->feedItemDidFail(*item, std::nullopt);
    EXPECT_EQ(answers->answer(*item).outcome, FeedAnswers::Outcome::finished);
}

TEST_F(FeedAnswersTest, AFeedThatWasNotAnsweredIsTimeout) {
    const auto item = makeItem();
    answers->expect(*item);
    answers->wait(std::chrono::milliseconds(0));
    EXPECT_EQ(answers->answer(*item).outcome, FeedAnswers::Outcome::timeout);
}

TEST_F(FeedAnswersTest, WaitsForIconStepsThatWereOpenBefore) {
    const auto item = makeItem();
    item->session().start("<feed/>");
    answers->expect(*item, 1);
    bool ended = false;
    RunLoop::main().perform([&] {
        RunLoop::main().perform([&] {
            ended = true;
            answers->feedItemDidEndIconStep(*item);
        });
    });
    answers->wait(limit);
    EXPECT_TRUE(ended);
}

TEST_F(FeedAnswersTest, TellsItsProgress) {
    const auto first = makeItem();
    const auto second = makeItem();
    std::vector<std::size_t> counts;
    for (const auto& item : {first, second}) {
        item->session().start("<feed/>");
        answers->expect(*item);
    }
    answers->wait(limit, [&](std::size_t answered, std::size_t expected) {
        EXPECT_EQ(expected, 2U);
        counts.push_back(answered);
    });
    EXPECT_EQ(counts, (std::vector<std::size_t>{0, 1, 2}));
}

} // namespace brindle
