#include "desktop/system/LauncherEntryDockTile.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QDBusMessage>
#include <QVariantMap>

namespace brindle::desktop {

void LauncherEntryDockTile::setBadgeLabel(const std::optional<std::string>& label) {
    if (!_bus.isConnected())
        return;
    bool isNumber = false;
    const qlonglong count = toQString(label.value_or(std::string())).toLongLong(&isNumber);
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/org/brindle/Brindle"), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://org.brindle.Brindle.desktop")
           << QVariantMap{{QStringLiteral("count"), count}, {QStringLiteral("count-visible"), isNumber}};
    _bus.send(update);
}

} // namespace brindle::desktop
