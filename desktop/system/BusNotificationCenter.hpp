#pragma once

#include "platform/DistributedNotificationCenter.hpp"

#include <QDBusConnection>

namespace brindle::desktop {

/// Notices from program to program as a signal of the session bus: org.brindle.Notifications, "Posted", with the notice's name and its
/// object, the empty text for none. Thread: main.
class BusNotificationCenter : public DistributedNotificationCenter {
public:
    explicit BusNotificationCenter(QDBusConnection bus) : _bus(std::move(bus)) {}

    void post(std::string_view name, const std::optional<std::string>& object) override;

private:
    QDBusConnection _bus;
};

} // namespace brindle::desktop
