#include "desktop/toolkit/RunLoopBridge.hpp"

#include "foundation/DispatchQueue.hpp"
#include "foundation/Timer.hpp"
#include "tests/desktop/EventLoop.hpp"

#include <QEventLoop>
#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(RunLoopBridgeTest, RunsWhatOtherThreadsPost) {
    const RunLoopBridge bridge;
    QEventLoop loop;
    int turns = 0;
    DispatchQueue("other").async([&] {
        RunLoop::main().perform([&] {
            EXPECT_TRUE(RunLoop::main().isCurrent());
            if (++turns == 1)
                loop.quit();
        });
    });
    // Sleeps for as long as nothing is posted.
    loop.exec();
    EXPECT_EQ(turns, 1);
}

TEST(RunLoopBridgeTest, RunsWhatWasPostedBeforeIt) {
    bool ran = false;
    RunLoop::main().perform([&] { ran = true; });
    const RunLoopBridge bridge;
    EXPECT_TRUE(runEventLoop([&] { return ran; }));
}

TEST(RunLoopBridgeTest, FiresTimersWhenTheyAreDue) {
    const RunLoopBridge bridge;
    QEventLoop loop;
    int fired = 0;
    const auto timer = Timer::scheduledTimer(std::chrono::milliseconds(20), true, [&](Timer& each) {
        if (++fired == 3) {
            each.invalidate();
            loop.quit();
        }
    });
    loop.exec();
    EXPECT_EQ(fired, 3);
}

} // namespace brindle::desktop
