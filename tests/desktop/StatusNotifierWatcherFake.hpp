#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

namespace brindle::desktop {

/// What a panel offers to items of the status area.
class StatusNotifierWatcherFake : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    static constexpr const char* name = "org.kde.StatusNotifierWatcher";
    static constexpr const char* path = "/StatusNotifierWatcher";

    explicit StatusNotifierWatcherFake(const QDBusConnection& connection) : bus(connection) { start(); }

    void start() {
        bus.registerObject(QLatin1String(path), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties | QDBusConnection::ExportAllSignals);
        bus.registerService(QLatin1String(name));
    }
    void stop() {
        bus.unregisterService(QLatin1String(name));
        items.clear();
    }

    QDBusConnection bus;
    bool hasHost = true;
    QStringList items;

public slots:
    void RegisterStatusNotifierItem(const QString& service) { items.append(service); }

signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();
};

} // namespace brindle::desktop
