#include "desktop/system/DBusTypes.hpp"

#include <QDBusMetaType>
#include <QtEndian>

namespace brindle::desktop {

DBusImage DBusImage::make(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    DBusImage result = {pixels.width(), pixels.height(), QByteArray(pixels.sizeInBytes(), Qt::Uninitialized)};
    qToBigEndian<quint32>(pixels.constBits(), pixels.sizeInBytes() / 4, result.bytes.data());
    return result;
}

void registerDBusTypes() {
    qDBusRegisterMetaType<DBusImage>();
    qDBusRegisterMetaType<DBusImages>();
    qDBusRegisterMetaType<DBusToolTip>();
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<DBusMenuPropertiesList>();
    qDBusRegisterMetaType<DBusMenuKeys>();
    qDBusRegisterMetaType<DBusMenuKeysList>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<DBusMenuEvents>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    // The bus looks the arguments of signals and slots up by the names that stand there.
    qRegisterMetaType<DBusMenuPropertiesList>("brindle::desktop::DBusMenuPropertiesList");
    qRegisterMetaType<DBusMenuKeysList>("brindle::desktop::DBusMenuKeysList");
    qRegisterMetaType<DBusMenuEvents>("brindle::desktop::DBusMenuEvents");
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusImage& image) {
    argument.beginStructure();
    argument << image.width << image.height << image.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusImage& image) {
    argument.beginStructure();
    argument >> image.width >> image.height >> image.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuKeys& item) {
    argument.beginStructure();
    argument << item.id << item.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuKeys& item) {
    argument.beginStructure();
    argument >> item.id >> item.keys;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.type << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.type >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    for (const QVariant& child : item.children)
        argument << QDBusVariant(child);
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.beginArray();
    item.children.clear();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        item.children.append(child.variant());
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

} // namespace brindle::desktop
