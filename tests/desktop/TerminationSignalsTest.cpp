#include "desktop/system/TerminationSignals.hpp"

#include "tests/desktop/EventLoop.hpp"

#include <QSignalSpy>
#include <csignal>
#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(TerminationSignalsTest, TellOfASignalInTheEventLoop) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        TerminationSignals watched;
        const QSignalSpy received(&watched, &TerminationSignals::received);
        ASSERT_EQ(::raise(number), 0);
        EXPECT_TRUE(received.isEmpty());
        EXPECT_TRUE(runEventLoop([&] { return received.size() == 1; }));
    }
}

TEST(TerminationSignalsTest, LetASecondOneOfAnyKindEndTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto raiseBoth = [](int first, int second) {
        const TerminationSignals watched;
        ::raise(first);
        ::raise(second);
    };
    EXPECT_EXIT(raiseBoth(SIGINT, SIGTERM), testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(raiseBoth(SIGTERM, SIGTERM), testing::KilledBySignal(SIGTERM), "");
}

} // namespace brindle::desktop
