#include "desktop/system/LogindSystemEvents.hpp"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <unistd.h>
#include <utility>

namespace brindle::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");
const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");
const QString userInterface = QStringLiteral("org.freedesktop.login1.User");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QDBusMessage managerCall(const char* method, const QVariant& argument) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, managerPath, managerInterface, QLatin1String(method));
    call << argument;
    return call;
}

QDBusMessage propertyCall(const QString& path, const QString& interface, const char* property) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, propertiesInterface, QStringLiteral("Get"));
    call << interface << QLatin1String(property);
    return call;
}

/// A property of a user that is a session: its identifier and its path.
QString sessionPath(const QVariant& property) {
    const QVariant value = property.value<QDBusVariant>().variant();
    if (!value.canConvert<QDBusArgument>())
        return {};
    const QDBusArgument argument = value.value<QDBusArgument>();
    QString identifier;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> identifier >> path;
    argument.endStructure();
    return identifier.isEmpty() ? QString() : path.path();
}

} // namespace

LogindSystemEvents::LogindSystemEvents(const QDBusConnection& systemBus) : _bus(systemBus) {
    if (!_bus.isConnected())
        return;
    _bus.connect(service, managerPath, managerInterface, QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
    findSession();
}

void LogindSystemEvents::ask(
    const QDBusMessage& question, const std::function<void(const QVariant&)>& answer, const std::function<void()>& failure) {
    auto* const watcher = new QDBusPendingCallWatcher(_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answer, failure] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
            answer(reply.arguments().constFirst());
        else if (failure)
            failure();
    });
}

/// The session of this process; for one that a service manager started, the session that the user has a display in.
void LogindSystemEvents::findSession() {
    const auto watch = [this](const QVariant& path) { watchSession(path.value<QDBusObjectPath>().path()); };
    const auto watchDisplay = [this](const QVariant& user) {
        ask(propertyCall(user.value<QDBusObjectPath>().path(), userInterface, "Display"),
            [this](const QVariant& display) { watchSession(sessionPath(display)); }, {});
    };
    const auto askUser = [this, watchDisplay] { ask(managerCall("GetUser", ::getuid()), watchDisplay, {}); };
    const QByteArray identifier = qgetenv("XDG_SESSION_ID");
    const auto process = static_cast<uint>(QCoreApplication::applicationPid());
    ask(identifier.isEmpty() ? managerCall("GetSessionByPID", process) : managerCall("GetSession", QString::fromUtf8(identifier)), watch,
        askUser);
}

void LogindSystemEvents::watchSession(const QString& path) {
    if (path.isEmpty())
        return;
    _bus.connect(service, path, propertiesInterface, QStringLiteral("PropertiesChanged"), this,
        SLOT(sessionPropertiesChanged(QString, QVariantMap, QStringList)));
    emit sessionFound();
}

void LogindSystemEvents::prepareForSleep(bool begins) {
    setAbsent(Absence::sleep, begins, Event::willSleep, Event::didWake);
}

void LogindSystemEvents::sessionPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&) {
    const auto active = changed.constFind(QStringLiteral("Active"));
    if (interface == sessionInterface && active != changed.constEnd())
        setAbsent(Absence::otherSession, !active->toBool(), Event::sessionDidResignActive, Event::sessionDidBecomeActive);
}

void LogindSystemEvents::setAbsent(Absence reason, bool isAbsent, Event begin, Event end) {
    const bool wasAway = !_absences.empty();
    if (isAbsent)
        _absences.insert(reason);
    else
        _absences.erase(reason);
    const bool isAway = !_absences.empty();
    if (wasAway != isAway)
        tell(isAway ? begin : end);
}

void LogindSystemEvents::tell(Event event) {
    const auto found = _observers.find(event);
    const auto observer = found == _observers.end() ? nullptr : found->second.lock();
    if (!observer)
        return;
    switch (event) {
    case Event::didWake:
        return observer->machineDidWake();
    case Event::willSleep:
        return observer->machineWillSleep();
    case Event::sessionDidResignActive:
        return observer->machineResignedSession();
    case Event::sessionDidBecomeActive:
        return observer->machineActivatedSession();
    }
}

void LogindSystemEvents::addObserver(Event event, std::weak_ptr<SystemEventsObserver> observer) {
    _observers.insert_or_assign(event, std::move(observer));
}

void LogindSystemEvents::removeObserver(Event event) {
    _observers.erase(event);
}

void LogindSystemEvents::setURLEventHandler(std::weak_ptr<SystemEventsObserver> handler) {
    _urlHandler = std::move(handler);
    // Whoever sets it is in the middle of its start.
    QMetaObject::invokeMethod(
        this,
        [this] {
            deliverAddresses();
            if (hasURLEventHandler())
                emit urlEventHandlerSet();
        },
        Qt::QueuedConnection);
}

void LogindSystemEvents::openAddress(std::string address) {
    _addresses.push_back(std::move(address));
    deliverAddresses();
}

void LogindSystemEvents::deliverAddresses() {
    while (!_addresses.empty()) {
        const auto handler = _urlHandler.lock();
        if (!handler)
            return;
        const std::string address = std::move(_addresses.front());
        _addresses.pop_front();
        handler->handleAppleEvent(address);
    }
}

} // namespace brindle::desktop
