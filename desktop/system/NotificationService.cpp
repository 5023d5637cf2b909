#include "desktop/system/NotificationService.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <utility>

namespace brindle::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString desktopEntry = QStringLiteral("org.brindle.Brindle");
constexpr int serverDecides = -1;      // when the banner goes away
constexpr std::size_t mostShown = 200; // servers may forget to tell that a banner is gone
constexpr int answerLimit = 10'000;    // milliseconds

QDBusMessage makeCall(const char* method) {
    return QDBusMessage::createMethodCall(service, path, service, QLatin1String(method));
}

} // namespace

NotificationService::NotificationService(QDBusConnection bus)
    : _bus(std::move(bus)), _watcher(service, _bus, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!_bus.isConnected())
        return;
    connect(&_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this](const QString&, const QString& former, const QString&) {
        // One that is started by the first call has no former owner.
        if (!former.isEmpty())
            forgetServer();
    });
    _bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
    _bus.connect(service, path, service, QStringLiteral("NotificationClosed"), this, SLOT(notificationClosed(uint, uint)));
}

void NotificationService::deliver(const UserNotification& notification) {
    if (!_bus.isConnected())
        return;
    _line.push_back(notification);
    if (_line.size() > longestLine)
        _line.pop_front();
    sendNext();
}

void NotificationService::sendNext() {
    if (_isBusy || _line.empty())
        return;
    if (!_capabilities)
        return askForCapabilities();
    const UserNotification next = std::move(_line.front());
    _line.pop_front();
    send(next);
}

void NotificationService::askForCapabilities() {
    _isBusy = true;
    auto* const answer = new QDBusPendingCallWatcher(_bus.asyncCall(makeCall("GetCapabilities"), answerLimit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        _isBusy = false;
        const QDBusPendingReply<QStringList> reply = *answer;
        if (reply.isError())
            return _line.clear();
        _capabilities = reply.value();
        sendNext();
    });
}

void NotificationService::send(const UserNotification& notification) {
    // Both may hold the name of a feed, which may be of any length.
    const QString text = titleText(notification.informativeText);
    const bool readsMarkup = _capabilities->contains(QStringLiteral("body-markup"));
    const bool hasActions = _capabilities->contains(QStringLiteral("actions"));
    QDBusMessage call = makeCall("Notify");
    call << QStringLiteral("Brindle") << 0U << desktopEntry << titleText(notification.title) << (readsMarkup ? text.toHtmlEscaped() : text)
         << (hasActions ? QStringList{QStringLiteral("default"), QString()} : QStringList())
         << QVariantMap{{QStringLiteral("desktop-entry"), desktopEntry}} << serverDecides;
    _isBusy = true;
    auto* const answer = new QDBusPendingCallWatcher(_bus.asyncCall(call, answerLimit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, notification, server = _server] {
        answer->deleteLater();
        _isBusy = false;
        const QDBusPendingReply<uint> reply = *answer;
        if (!reply.isError() && server == _server)
            _shown.insert_or_assign(reply.value(), notification);
        if (_shown.size() > mostShown)
            _shown.erase(_shown.begin());
        sendNext();
    });
}

void NotificationService::forgetServer() {
    ++_server;
    _capabilities.reset();
    _shown.clear();
}

void NotificationService::actionInvoked(uint id, const QString& action) {
    const auto found = _shown.find(id);
    const auto receiver = delegate.lock();
    if (found == _shown.end() || !receiver || action != QLatin1String("default"))
        return;
    const UserNotification activated = found->second;
    receiver->userNotificationCenterDidActivateNotification(activated);
}

void NotificationService::notificationClosed(uint id, uint) {
    _shown.erase(id);
}

} // namespace brindle::desktop
