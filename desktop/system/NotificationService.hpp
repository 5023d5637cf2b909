#pragma once

#include "platform/UserNotificationCenter.hpp"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>
#include <deque>
#include <map>
#include <optional>

namespace brindle::desktop {

/// Banners by the desktop's server of them (the Desktop Notifications Specification, org.freedesktop.Notifications). What the server can do
/// is asked once of each server. Nothing waits for an answer: banners go one after the other, and of a burst the oldest are dropped.
/// Without a server all are. Thread: main.
class NotificationService : public QObject, public UserNotificationCenter {
    Q_OBJECT

public:
    /// How many may wait for a server that is slow.
    static constexpr std::size_t longestLine = 50;

    explicit NotificationService(QDBusConnection bus);

    void deliver(const UserNotification& notification) override;

private slots:
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);

private:
    void sendNext();
    void askForCapabilities();
    void send(const UserNotification& notification);
    void forgetServer();

    QDBusConnection _bus;
    QDBusServiceWatcher _watcher;
    std::optional<QStringList> _capabilities; ///< absent: this server was not asked yet
    bool _isBusy = false;                     ///< an answer is on its way
    unsigned _server = 0;                     ///< counts the servers that came and went
    std::deque<UserNotification> _line;
    std::map<uint, UserNotification> _shown; ///< by the server's numbers
};

} // namespace brindle::desktop
