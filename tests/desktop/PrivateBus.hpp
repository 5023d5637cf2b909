#pragma once

#include "tests/support/TemporaryFolder.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QStringList>
#include <memory>
#include <vector>

namespace brindle::desktop {

/// A message bus that nobody else is on, and on which nothing starts by itself.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QString& address() const { return _address; }
    /// A connection of its own.
    QDBusConnection connect();
    /// Whether somebody has a name.
    bool hasService(const QString& name);

    /// Starts one of the mock services of python3-dbusmock, and waits for its name; null, and the test fails, where it doesn't come.
    std::unique_ptr<QProcess> startMock(const QString& mockTemplate, const QString& name, const QString& parameters = {});
    /// The same environment, with this bus for that of the session and of the system.
    QProcessEnvironment environment() const;

    /// Calls a method, the event loop running until the answer is there.
    static QDBusMessage call(const QDBusConnection& connection, const QString& service, const QString& path, const QString& interface,
        const QString& method, const QVariantList& arguments = {});
    /// The value of a property; invalid where there is none.
    static QVariant property(
        const QDBusConnection& connection, const QString& service, const QString& path, const QString& interface, const QString& name);

private:
    TemporaryFolder _folder;
    QProcess _daemon;
    QString _address;
    QStringList _connections;
};

/// Ends a process that a test started.
void stop(QProcess& process);

} // namespace brindle::desktop
