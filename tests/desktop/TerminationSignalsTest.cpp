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

} // namespace brindle::desktop
