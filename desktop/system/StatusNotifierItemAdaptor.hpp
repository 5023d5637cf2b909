#pragma once

#include "desktop/system/DBusTypes.hpp"
#include "desktop/system/StatusNotifierItem.hpp"

#include <QDBusAbstractAdaptor>

namespace brindle::desktop {

/// org.kde.StatusNotifierItem over a `StatusNotifierItem`, whose part it becomes. The methods are the interface's own. Thread: main.
class StatusNotifierItemAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ noName)
    Q_PROPERTY(brindle::desktop::DBusImages IconPixmap READ icon)
    Q_PROPERTY(QString OverlayIconName READ noName)
    Q_PROPERTY(brindle::desktop::DBusImages OverlayIconPixmap READ noIcon)
    Q_PROPERTY(QString AttentionIconName READ noName)
    Q_PROPERTY(brindle::desktop::DBusImages AttentionIconPixmap READ noIcon)
    Q_PROPERTY(QString AttentionMovieName READ noName)
    Q_PROPERTY(brindle::desktop::DBusToolTip ToolTip READ toolTip)
    Q_PROPERTY(QString IconAccessibleDesc READ description)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)

public:
    explicit StatusNotifierItemAdaptor(StatusNotifierItem& item);

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    static QString id() { return QStringLiteral("org.brindle.Brindle"); }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString noName() { return {}; }
    static DBusImages noIcon() { return {}; }
    /// The menu of the program's own opens on activation; it shows more than a panel's. Wayland has no place for it on the screen.
    static bool itemIsMenu();
    QString title() const { return _item.look().title; }
    DBusImages icon() const { return _item.look().icon; }
    DBusToolTip toolTip() const;
    QString description() const { return _item.look().description; }
    static QDBusObjectPath menu() { return QDBusObjectPath(QLatin1String(StatusNotifierItem::menuPath)); }

public slots:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus.
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

signals:
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);
    // NOLINTEND(readability-identifier-naming)

private:
    StatusNotifierItem& _item;
};

} // namespace brindle::desktop
