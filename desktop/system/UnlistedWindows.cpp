#include "desktop/system/UnlistedWindows.hpp"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace brindle::desktop {

namespace {

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto question = xcb_intern_atom(connection, false, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, question, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Before the window is mapped: afterwards the state is the window manager's. The toolkit adds its own to it.
void unlist(xcb_connection_t* connection, WId window) {
    const std::array<xcb_atom_t, 2> states = {atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"), atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window), atom(connection, "_NET_WM_STATE"),
        XCB_ATOM_ATOM, 32, states.size(), states.data());
}

} // namespace

UnlistedWindows::UnlistedWindows() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool UnlistedWindows::eventFilter(QObject* object, QEvent* event) {
    // The toolkit sends it before it shows the window, and again, as spontaneous, when a minimised one comes back.
    if (event->type() != QEvent::Show || event->spontaneous() || !object->isWidgetType())
        return false;
    const auto* const widget = static_cast<const QWidget*>(object);
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && widget->isWindow() && widget->windowType() != Qt::Popup && widget->windowType() != Qt::ToolTip)
        unlist(x11->connection(), widget->winId());
    return false;
}

} // namespace brindle::desktop
