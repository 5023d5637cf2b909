#include "desktop/system/StatusNotifierItemAdaptor.hpp"

#include <QGuiApplication>

namespace brindle::desktop {

StatusNotifierItemAdaptor::StatusNotifierItemAdaptor(StatusNotifierItem& item) : QDBusAbstractAdaptor(&item), _item(item) {
    connect(&item, &StatusNotifierItem::titleChanged, this, &StatusNotifierItemAdaptor::NewTitle);
    connect(&item, &StatusNotifierItem::iconChanged, this, &StatusNotifierItemAdaptor::NewIcon);
    connect(&item, &StatusNotifierItem::toolTipChanged, this, &StatusNotifierItemAdaptor::NewToolTip);
}

bool StatusNotifierItemAdaptor::itemIsMenu() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

DBusToolTip StatusNotifierItemAdaptor::toolTip() const {
    const QString& text = _item.look().toolTip;
    const qsizetype end = text.indexOf(QLatin1Char('\n'));
    // Panels read the text below the heading as markup.
    return {{}, {}, end < 0 ? text : text.left(end), end < 0 ? QString() : text.mid(end + 1).toHtmlEscaped()};
}

void StatusNotifierItemAdaptor::Activate(int x, int y) {
    emit _item.activated(QPoint(x, y));
}

void StatusNotifierItemAdaptor::SecondaryActivate(int x, int y) {
    emit _item.activated(QPoint(x, y));
}

void StatusNotifierItemAdaptor::ContextMenu(int x, int y) {
    emit _item.activated(QPoint(x, y));
}

void StatusNotifierItemAdaptor::Scroll(int, const QString&) {}

} // namespace brindle::desktop
