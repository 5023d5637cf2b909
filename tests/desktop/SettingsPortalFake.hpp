#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>

namespace brindle::desktop {

/// What a desktop offers of its settings.
class SettingsPortalFake : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    SettingsPortalFake(QDBusConnection bus, uint scheme) : colorScheme(scheme) {
        bus.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    void change(uint scheme) {
        colorScheme = scheme;
        emit SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), QDBusVariant(scheme));
    }

    uint colorScheme;

public slots:
    QDBusVariant Read(const QString&, const QString&) { return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme))); }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace brindle::desktop
