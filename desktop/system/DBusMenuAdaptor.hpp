#pragma once

#include "desktop/system/DBusTypes.hpp"
#include "desktop/system/MenuExport.hpp"

#include <QDBusAbstractAdaptor>

namespace brindle::desktop {

/// com.canonical.dbusmenu, version 3, over a `MenuExport`, whose part it becomes. The methods are the interface's own. Thread: main.
class DBusMenuAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit DBusMenuAdaptor(MenuExport& menu);

    static uint version() { return 3; }
    static QString textDirection();
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

public slots:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus.
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, brindle::desktop::DBusMenuLayout& layout);
    brindle::desktop::DBusMenuPropertiesList GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const brindle::desktop::DBusMenuEvents& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

signals:
    void ItemsPropertiesUpdated(
        const brindle::desktop::DBusMenuPropertiesList& updatedProps, const brindle::desktop::DBusMenuKeysList& removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);
    // NOLINTEND(readability-identifier-naming)

private:
    MenuExport& _menu;
};

} // namespace brindle::desktop
