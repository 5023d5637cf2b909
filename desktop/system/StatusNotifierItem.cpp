#include "desktop/system/StatusNotifierItem.hpp"

#include "desktop/system/DBusMenuAdaptor.hpp"
#include "desktop/system/StatusNotifierItemAdaptor.hpp"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace brindle::desktop {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusNotifierItem::StatusNotifierItem(QDBusConnection bus)
    : _bus(std::move(bus)), _watcher(watcherService, _bus, QDBusServiceWatcher::WatchForOwnerChange),
      _service(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid())) {
    registerDBusTypes();
    new StatusNotifierItemAdaptor(*this);
    // Who makes it is to hear what is found.
    QMetaObject::invokeMethod(
        this, [this] { lookForWatcher(); }, Qt::QueuedConnection);
    if (!_bus.isConnected())
        return;
    _bus.registerObject(QLatin1String(itemPath), this, QDBusConnection::ExportAdaptors);
    _bus.registerService(_service);
    for (const auto& [name, slot] : {std::pair("StatusNotifierHostRegistered", SLOT(hostRegistered())),
             std::pair("StatusNotifierHostUnregistered", SLOT(hostUnregistered()))})
        _bus.connect(watcherService, watcherPath, watcherService, QLatin1String(name), this, slot);
    connect(&_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this](const QString&, const QString&, const QString& owner) {
        if (owner.isEmpty())
            setState(false, false);
        else
            registerItem();
    });
}

StatusNotifierItem::~StatusNotifierItem() {
    if (!_bus.isConnected())
        return;
    _bus.unregisterObject(QLatin1String(itemPath));
    if (_menu)
        _bus.unregisterObject(QLatin1String(menuPath));
    _bus.unregisterService(_service);
}

void StatusNotifierItem::setLook(Look look) {
    const Look before = std::exchange(_look, std::move(look));
    if (_look.title != before.title)
        emit titleChanged();
    if (_look.icon != before.icon || _look.description != before.description)
        emit iconChanged();
    if (_look.toolTip != before.toolTip)
        emit toolTipChanged();
}

void StatusNotifierItem::setMenu(std::shared_ptr<MenuExport> menu) {
    if (_bus.isConnected())
        _bus.unregisterObject(QLatin1String(menuPath));
    _menu = std::move(menu);
    if (!_menu || !_bus.isConnected())
        return;
    new DBusMenuAdaptor(*_menu);
    _bus.registerObject(QLatin1String(menuPath), _menu.get(), QDBusConnection::ExportAdaptors);
}

void StatusNotifierItem::lookForWatcher() {
    if (_bus.isConnected() && _bus.interface()->isServiceRegistered(watcherService))
        registerItem();
    else
        setState(false, false);
}

void StatusNotifierItem::registerItem() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcherService, watcherPath, watcherService, QStringLiteral("RegisterStatusNotifierItem"));
    call << _service;
    auto* const answer = new QDBusPendingCallWatcher(_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (answer->isError())
            return setState(false, false);
        _isRegistered = true;
        askForHost();
    });
}

void StatusNotifierItem::askForHost() {
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << watcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* const answer = new QDBusPendingCallWatcher(_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        // A watcher that can't tell counts as one that shows items.
        setState(_isRegistered, reply.isError() || reply.value().variant().toBool());
    });
}

void StatusNotifierItem::hostRegistered() {
    if (_isRegistered)
        setState(true, true);
}

void StatusNotifierItem::hostUnregistered() {
    // Another host may still be there.
    if (_isRegistered)
        askForHost();
}

void StatusNotifierItem::setState(bool isRegistered, bool hasHost) {
    _isRegistered = isRegistered;
    _hasHost = hasHost;
    const bool isShown = isRegistered && hasHost;
    if (std::exchange(_isShown, isShown) != isShown)
        emit isShownChanged();
}

} // namespace brindle::desktop
