#include "desktop/system/BusNotificationCenter.hpp"

#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PrivateBus.hpp"
#include "tests/desktop/SignalCatcher.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(BusNotificationCenterTest, PostsTheNoticeWithItsObject) {
    PrivateBus bus;
    const SignalCatcher other(bus.connect(), QStringLiteral("org.brindle.Notifications"), QStringLiteral("Posted"));
    BusNotificationCenter center(bus.connect());
    center.post("Notice", "org.brindle.Brindle");
    center.post("Other", std::nullopt);
    ASSERT_TRUE(runEventLoop([&] { return other.messages.size() == 2; }));
    EXPECT_EQ(other.messages[0].arguments(), (QVariantList{QStringLiteral("Notice"), QStringLiteral("org.brindle.Brindle")}));
    EXPECT_EQ(other.messages[1].arguments(), (QVariantList{QStringLiteral("Other"), QString()}));
}

} // namespace brindle::desktop
