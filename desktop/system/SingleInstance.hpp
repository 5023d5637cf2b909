#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace brindle::desktop {

/// Sees to it that the program runs once in a session: the first start takes a name on the session bus and answers there
/// (org.freedesktop.Application, Desktop Entry Specification, "D-Bus Activation"), a later one hands over what it was asked to open.
/// Without a bus every start is the first. Thread: main.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// The program's own name, and where it answers.
    static constexpr const char* standardName = "org.brindle.Brindle";
    /// The action of its desktop entry.
    static constexpr const char* feedsBrowserAction = "show-feeds-browser";

    SingleInstance(QDBusConnection bus, QString name);
    ~SingleInstance() override;

    /// Takes the name; false where another process has it.
    bool acquire();
    /// Has the process that took the name open `uris`, or show itself where there are none; false where it doesn't answer. `platformData`
    /// is what the desktop gave this process.
    bool handOver(const QStringList& uris, const QVariantMap& platformData = {}) const;
    /// The same for one of the actions of the program's desktop entry.
    bool handOverAction(const QString& action, const QVariantMap& platformData = {}) const;
    /// From the environment, for another process: the permission to take a person's attention, by a token (XDG Activation, Startup
    /// Notification Protocol Specification).
    static QVariantMap platformData();

signals:
    /// The program was started again, or the desktop asks it to show itself. `token` lets its window come to the front; it may be empty.
    void activated(const QString& token);
    /// Addresses and files, as URIs.
    void opened(const QStringList& uris);
    /// One of the actions of the program's desktop entry.
    void actionActivated(const QString& name, const QString& token);

private:
    QString path() const;

    QDBusConnection _bus;
    const QString _name;
    bool _isFirst = false;
};

} // namespace brindle::desktop
