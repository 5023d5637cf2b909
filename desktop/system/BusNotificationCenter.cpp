#include "desktop/system/BusNotificationCenter.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QDBusMessage>

namespace brindle::desktop {

void BusNotificationCenter::post(std::string_view name, const std::optional<std::string>& object) {
    if (!_bus.isConnected())
        return;
    QDBusMessage notice = QDBusMessage::createSignal(
        QStringLiteral("/org/brindle/Brindle"), QStringLiteral("org.brindle.Notifications"), QStringLiteral("Posted"));
    notice << toQString(name) << toQString(object.value_or(std::string()));
    _bus.send(notice);
}

} // namespace brindle::desktop
