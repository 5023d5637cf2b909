#pragma once

#include "platform/SystemEvents.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace brindle::desktop {

/// Sleep and the person's session as systemd-logind tells of them (org.freedesktop.login1), and the addresses that other programs ask to be
/// opened, which are kept until somebody takes them. Where there is no logind the machine never sleeps. While the machine sleeps or the
/// session is another's, a second reason to be away is not told, and neither is the end of the first. Thread: main.
class LogindSystemEvents : public QObject, public SystemEvents {
    Q_OBJECT

public:
    explicit LogindSystemEvents(const QDBusConnection& systemBus);

    /// Another program asks that an address be opened.
    void openAddress(std::string address);
    /// Whether the program takes addresses: it has started.
    bool hasURLEventHandler() const { return !_urlHandler.expired(); }

    void addObserver(Event event, std::weak_ptr<SystemEventsObserver> observer) override;
    void removeObserver(Event event) override;
    void setURLEventHandler(std::weak_ptr<SystemEventsObserver> handler) override;
    void removeURLEventHandler() override { _urlHandler.reset(); }

signals:
    /// In a later turn than the setting.
    void urlEventHandlerSet();
    /// The session that this program belongs to was found, and is being watched.
    void sessionFound();

private slots:
    void prepareForSleep(bool begins);
    void sessionPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);

private:
    /// Why nobody is at the machine.
    enum class Absence { sleep, otherSession };

    void findSession();
    void ask(const QDBusMessage& question, const std::function<void(const QVariant&)>& answer, const std::function<void()>& failure);
    void watchSession(const QString& path);
    void setAbsent(Absence reason, bool isAbsent, Event begin, Event end);
    void tell(Event event);
    void deliverAddresses();

    QDBusConnection _bus;
    std::map<Event, std::weak_ptr<SystemEventsObserver>> _observers;
    std::weak_ptr<SystemEventsObserver> _urlHandler;
    std::deque<std::string> _addresses; ///< that nobody took yet
    std::set<Absence> _absences;
};

} // namespace brindle::desktop
