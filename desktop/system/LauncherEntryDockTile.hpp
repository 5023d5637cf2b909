#pragma once

#include "platform/DockTile.hpp"

#include <QDBusConnection>
#include <QVariantMap>

namespace brindle::desktop {

/// The count on the program's launcher, by the signal that docks listen for (com.canonical.Unity.LauncherEntry). Thread: main.
class LauncherEntryDockTile : public DockTile {
public:
    explicit LauncherEntryDockTile(QDBusConnection bus) : _bus(std::move(bus)) {}

    /// Docks show numbers only: any other text shows nothing. They are told of what differs.
    void setBadgeLabel(const std::optional<std::string>& label) override;

private:
    QDBusConnection _bus;
    QVariantMap _told; ///< empty: nothing yet
};

} // namespace brindle::desktop
