#include "foundation/URLTransferLine.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace brindle {
namespace {

using Time = URLTransferLine::Time;

constexpr Time start{};
constexpr Time later = start + URLTransferLine::patience;

/// Two places in all, one for each host, but where a test says otherwise.
class URLTransferLineTest : public testing::Test {
protected:
    URLTransferLine line{2, 1};

    void add(std::uint64_t identifier, const std::string& host) {
        URLTransfer::Request request;
        request.identifier = identifier;
        request.host = host;
        line.add(std::make_unique<URLTransfer>(std::move(request)));
    }

    /// The identifier of the next transfer, which begins; 0 when none has a place.
    std::uint64_t next(Time now = start) {
        URLTransfer* const transfer = line.next();
        if (!transfer)
            return 0;
        EXPECT_TRUE(transfer->begin(nullptr, now));
        return transfer->request().identifier;
    }

    void sendBack(Time now) {
        URLTransfer* const transfer = line.toSuspend(now);
        ASSERT_NE(transfer, nullptr);
        transfer->suspend(now);
        line.sendBack(*transfer);
    }
};

TEST_F(URLTransferLineTest, ServesFirstWhoComesFirst) {
    add(1, "a");
    add(2, "b");
    add(3, "c");
    EXPECT_EQ(next(), 1U);
    EXPECT_EQ(next(), 2U);
    EXPECT_EQ(next(), 0U) << "both places are taken";
    EXPECT_NE(line.take(1), nullptr);
    EXPECT_EQ(next(), 3U);
}

TEST_F(URLTransferLineTest, PassesOverHostsThatHaveTheirShare) {
    add(1, "a");
    add(2, "a");
    add(3, "b");
    EXPECT_EQ(next(), 1U);
    EXPECT_EQ(next(), 3U);
    EXPECT_NE(line.take(3), nullptr);
    EXPECT_EQ(next(), 0U) << "there is room, but not for that host";
    EXPECT_NE(line.take(1), nullptr);
    EXPECT_EQ(next(), 2U);
}

TEST_F(URLTransferLineTest, TakesOutWhatWaits) {
    add(1, "a");
    add(2, "a");
    EXPECT_EQ(line.take(1)->request().identifier, 1U);
    EXPECT_EQ(line.take(1), nullptr);
    EXPECT_EQ(next(), 2U);
}

TEST_F(URLTransferLineTest, IsCrowdedWhileOneWaitsThatNeverBegan) {
    EXPECT_FALSE(line.isCrowded());
    add(1, "a");
    EXPECT_TRUE(line.isCrowded());
    EXPECT_EQ(next(), 1U);
    EXPECT_FALSE(line.isCrowded());
    add(2, "a");
    sendBack(later);
    EXPECT_EQ(next(), 2U);
    EXPECT_FALSE(line.isCrowded()) << "who waits has begun before";
}

TEST_F(URLTransferLineTest, SendsTheMostSilentBackForOneThatNeverBegan) {
    add(1, "a");
    add(2, "b");
    EXPECT_EQ(next(start + std::chrono::milliseconds(1)), 1U);
    EXPECT_EQ(next(start), 2U);
    EXPECT_EQ(line.toSuspend(later), nullptr) << "nobody waits";
    add(3, "c");
    EXPECT_EQ(line.toSuspend(later - std::chrono::milliseconds(1)), nullptr) << "nobody was silent for long";
    EXPECT_EQ(line.toSuspend(later + std::chrono::milliseconds(1))->request().identifier, 2U);
}

TEST_F(URLTransferLineTest, SendsNobodyBackForAHostThatHasItsShare) {
    add(1, "a");
    add(2, "b");
    add(3, "a");
    EXPECT_EQ(next(), 1U);
    EXPECT_EQ(next(), 2U);
    ASSERT_NE(line.toSuspend(later), nullptr);
    EXPECT_EQ(line.toSuspend(later)->request().identifier, 1U) << "the place of b's is of no use to a's";
}

TEST_F(URLTransferLineTest, ServesThoseSentBackAfterThoseThatNeverBegan) {
    add(1, "a");
    EXPECT_EQ(next(), 1U);
    add(2, "a");
    sendBack(later);
    add(3, "a");
    EXPECT_EQ(next(), 2U);
    EXPECT_NE(line.take(2), nullptr);
    EXPECT_EQ(next(), 3U);
    EXPECT_NE(line.take(3), nullptr);
    EXPECT_EQ(next(), 1U);
}

} // namespace
} // namespace brindle
