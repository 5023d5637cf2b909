#include "foundation/NotificationCenter.hpp"

#include <gtest/gtest.h>
#include <string>

namespace brindle {
namespace {

TEST(NotificationCenterTest, TellsObserversInTheOrderOfTheirRegistration) {
    NotificationCenter center;
    const int object = 0;
    std::string log;
    const auto a = center.addObserver("event", nullptr, [&](const Notification&) { log += 'a'; });
    const auto b = center.addObserver("event", &object, [&](const Notification&) { log += 'b'; });
    const auto c = center.addObserver("event", nullptr, [&](const Notification&) { log += 'c'; });
    center.post("event", &object);
    EXPECT_EQ(log, "abc");
}

TEST(NotificationCenterTest, TellsOnlyOfTheNameAndTheObjectAskedFor) {
    NotificationCenter center;
    const int mine = 0;
    const int other = 0;
    int count = 0;
    const auto token = center.addObserver("event", &mine, [&](const Notification& notification) {
        EXPECT_EQ(notification.object, &mine);
        ++count;
    });
    center.post("event", &other);
    center.post("event");
    center.post("another", &mine);
    EXPECT_EQ(count, 0);
    center.post("event", &mine);
    EXPECT_EQ(count, 1);
}

TEST(NotificationCenterTest, GivesUserInfoByKeyAndType) {
    NotificationCenter center;
    int count = 0;
    const auto token = center.addObserver("event", nullptr, [&](const Notification& notification) {
        EXPECT_EQ(notification.value<bool>("flag"), true);
        EXPECT_EQ(notification.value<std::string>("text"), "text");
        EXPECT_EQ(notification.value<bool>("text"), std::nullopt);
        EXPECT_EQ(notification.value<bool>("unknown"), std::nullopt);
        ++count;
    });
    center.post("event", nullptr, {{"flag", true}, {"text", std::string("text")}});
    EXPECT_EQ(count, 1);
}

TEST(NotificationCenterTest, ForgetsAnObserverWithItsToken) {
    NotificationCenter center;
    int count = 0;
    {
        const auto token = center.addObserver("event", nullptr, [&](const Notification&) { ++count; });
        center.post("event");
    }
    center.post("event");
    EXPECT_EQ(count, 1);
}

TEST(NotificationCenterTest, BearsObserversThatComeAndGoDuringANotice) {
    NotificationCenter center;
    int count = 0;
    NotificationCenter::Token added;
    NotificationCenter::Token token = center.addObserver("event", nullptr, [&](const Notification&) {
        token = {};
        added = center.addObserver("event", nullptr, [&](const Notification&) { count += 10; });
        ++count;
    });
    center.post("event");
    EXPECT_EQ(count, 1);
    center.post("event");
    EXPECT_EQ(count, 11);
}

TEST(NotificationCenterTest, BearsATokenThatOutlivesItsCenter) {
    NotificationCenter::Token token;
    {
        NotificationCenter center;
        token = center.addObserver("event", nullptr, [](const Notification&) { FAIL(); });
    }
    token = {};
    SUCCEED();
}

} // namespace
} // namespace brindle
