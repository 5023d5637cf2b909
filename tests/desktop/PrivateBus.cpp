#include "tests/desktop/PrivateBus.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

constexpr int startLimit = 60'000; // milliseconds

constexpr std::string_view configuration = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

int connectionCount = 0;

} // namespace

PrivateBus::PrivateBus() {
    const QString folder = toQString(_folder.path().string());
    const QString file = folder + QStringLiteral("/bus.conf");
    EXPECT_TRUE(FileManager::writeAtomically(file.toStdString(), toQString(configuration).arg(folder).toStdString()));
    _daemon.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--config-file=") + file, QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    while (!_daemon.canReadLine() && _daemon.waitForReadyRead(startLimit)) {
    }
    _address = QString::fromUtf8(_daemon.readLine()).trimmed();
    EXPECT_FALSE(_address.isEmpty());
}

PrivateBus::~PrivateBus() {
    for (const QString& name : _connections)
        QDBusConnection::disconnectFromBus(name);
    stop(_daemon);
}

QDBusConnection PrivateBus::connect() {
    const QString name = QStringLiteral("test-%1").arg(++connectionCount);
    _connections.append(name);
    return QDBusConnection::connectToBus(_address, name);
}

bool PrivateBus::hasService(const QString& name) {
    return connect().interface()->isServiceRegistered(name);
}

QProcessEnvironment PrivateBus::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), _address);
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), _address);
    return environment;
}

std::unique_ptr<QProcess> PrivateBus::startMock(const QString& mockTemplate, const QString& name, const QString& parameters) {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment());
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QStringList arguments = {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("-t"), mockTemplate};
    if (!parameters.isEmpty())
        arguments += {QStringLiteral("-p"), parameters};
    process->start(QStringLiteral("/usr/bin/python3"), arguments);
    const QDBusConnection observer = connect();
    const bool isThere =
        runEventLoop([&] { return process->state() == QProcess::NotRunning || observer.interface()->isServiceRegistered(name); });
    EXPECT_TRUE(isThere && process->state() == QProcess::Running) << "python3-dbusmock has no " << mockTemplate.toStdString();
    return process;
}

QDBusMessage PrivateBus::call(const QDBusConnection& connection, const QString& service, const QString& path, const QString& interface,
    const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall answer = connection.asyncCall(message);
    EXPECT_TRUE(runEventLoop([&] { return answer.isFinished(); }));
    return answer.reply();
}

QVariant PrivateBus::property(
    const QDBusConnection& connection, const QString& service, const QString& path, const QString& interface, const QString& name) {
    const QDBusMessage reply =
        call(connection, service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {interface, name});
    return reply.arguments().isEmpty() ? QVariant() : reply.arguments().constFirst().value<QDBusVariant>().variant();
}

void stop(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished())
        process.kill();
    process.waitForFinished();
}

} // namespace brindle::desktop
