#pragma once

#include <map>
#include <memory>
#include <string>

namespace brindle {

/// A banner. UTF-8.
struct UserNotification {
    std::string title;
    std::string informativeText;
    std::map<std::string, std::string, std::less<>> userInfo = {}; ///< what the program finds in it again
};

/// Is told what becomes of banners. Thread: main.
class UserNotificationCenterDelegate {
public:
    virtual ~UserNotificationCenterDelegate() = default;
    /// The user clicked a banner.
    virtual void userNotificationCenterDidActivateNotification(const UserNotification& notification) = 0;
};

/// Shows banners. A banner that can't be shown is dropped. Thread: main.
class UserNotificationCenter {
public:
    virtual ~UserNotificationCenter() = default;
    virtual void deliver(const UserNotification& notification) = 0;

    std::weak_ptr<UserNotificationCenterDelegate> delegate;
};

} // namespace brindle
