#include "desktop/system/LauncherEntryDockTile.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QDBusMessage>
#include <utility>

namespace brindle::desktop {

void LauncherEntryDockTile::setBadgeLabel(const std::optional<std::string>& label) {
    if (!_bus.isConnected())
        return;
    bool isNumber = false;
    const qlonglong count = toQString(label.value_or(std::string())).toLongLong(&isNumber);
    const QVariantMap properties = {{QStringLiteral("count"), count}, {QStringLiteral("count-visible"), isNumber}};
    if (std::exchange(_told, properties) == properties)
        return;
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/org/brindle/Brindle"), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://org.brindle.Brindle.desktop") << properties;
    _bus.send(update);
}

} // namespace brindle::desktop
