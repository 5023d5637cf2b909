#include "desktop/system/DBusMenuAdaptor.hpp"

#include <QGuiApplication>
#include <algorithm>

namespace brindle::desktop {

DBusMenuAdaptor::DBusMenuAdaptor(MenuExport& menu) : QDBusAbstractAdaptor(&menu), _menu(menu) {
    connect(&menu, &MenuExport::layoutUpdated, this, [this](uint revision, int parent) { emit LayoutUpdated(revision, parent); });
    connect(&menu, &MenuExport::propertiesUpdated, this,
        [this](const DBusMenuPropertiesList& items, const DBusMenuKeysList& removed) { emit ItemsPropertiesUpdated(items, removed); });
}

QString DBusMenuAdaptor::textDirection() {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint DBusMenuAdaptor::GetLayout(int parentId, int recursionDepth, const QStringList&, DBusMenuLayout& layout) {
    layout = _menu.layout(parentId, recursionDepth);
    return _menu.revision();
}

DBusMenuPropertiesList DBusMenuAdaptor::GetGroupProperties(const QList<int>& ids, const QStringList&) {
    DBusMenuPropertiesList result;
    for (const int id : ids) {
        if (_menu.contains(id))
            result.append({id, _menu.properties(id)});
    }
    return result;
}

QDBusVariant DBusMenuAdaptor::GetProperty(int id, const QString& name) {
    const QVariant value = _menu.properties(id).value(name);
    // Nothing can't go over the bus.
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void DBusMenuAdaptor::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (eventId == QLatin1String("opened"))
        return _menu.opened(id);
    if (eventId == QLatin1String("closed"))
        return _menu.closed(id);
    if (eventId != QLatin1String("clicked"))
        return;
    // The panel is answered first: an action may take its time.
    QMetaObject::invokeMethod(
        this, [this, id] { _menu.choose(id); }, Qt::QueuedConnection);
}

QList<int> DBusMenuAdaptor::EventGroup(const DBusMenuEvents& events) {
    QList<int> unknown;
    for (const DBusMenuEvent& event : events) {
        if (_menu.contains(event.id))
            Event(event.id, event.type, event.data, event.timestamp);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool DBusMenuAdaptor::AboutToShow(int id) {
    return _menu.aboutToShow(id);
}

QList<int> DBusMenuAdaptor::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    QList<int> changed;
    for (const int id : ids) {
        if (!_menu.contains(id))
            idErrors.append(id);
        else if (_menu.aboutToShow(id))
            changed.append(id);
    }
    return changed;
}

} // namespace brindle::desktop
