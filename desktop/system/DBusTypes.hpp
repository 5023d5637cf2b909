#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QStringList>
#include <QVariantMap>

/// What goes over the bus in the interfaces of the status area, as the specifications of StatusNotifierItem and of com.canonical.dbusmenu
/// have it.
namespace brindle::desktop {

/// A picture: 32 bits a pixel, alpha first, in network byte order.
struct DBusImage {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    static DBusImage make(const QImage& image);
    friend bool operator==(const DBusImage&, const DBusImage&) = default;
};
using DBusImages = QList<DBusImage>;

struct DBusToolTip {
    QString iconName;
    DBusImages icon;
    QString title;
    QString text;
};

struct DBusMenuProperties {
    int id = 0;
    QVariantMap properties;
};
using DBusMenuPropertiesList = QList<DBusMenuProperties>;

struct DBusMenuKeys {
    int id = 0;
    QStringList keys;
};
using DBusMenuKeysList = QList<DBusMenuKeys>;

struct DBusMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    uint timestamp = 0;
};
using DBusMenuEvents = QList<DBusMenuEvent>;

/// An item with those below it, each of them a layout in a variant. No deeper than the bus allows.
struct DBusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<QVariant> children;
};

/// Makes the types known to the bus's marshalling; once and again does no harm.
void registerDBusTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const DBusImage& image);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusImage& image);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuKeys& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuKeys& item);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& item);

} // namespace brindle::desktop

Q_DECLARE_METATYPE(brindle::desktop::DBusImage)
Q_DECLARE_METATYPE(brindle::desktop::DBusToolTip)
Q_DECLARE_METATYPE(brindle::desktop::DBusMenuProperties)
Q_DECLARE_METATYPE(brindle::desktop::DBusMenuKeys)
Q_DECLARE_METATYPE(brindle::desktop::DBusMenuEvent)
Q_DECLARE_METATYPE(brindle::desktop::DBusMenuLayout)
