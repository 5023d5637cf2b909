#pragma once

#include "platform/UserNotificationCenter.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs the banners.
class UserNotificationCenterFake : public UserNotificationCenter {
public:
    void deliver(const UserNotification& notification) override { delivered.push_back(notification); }

    std::vector<UserNotification> delivered;
};

} // namespace brindle
