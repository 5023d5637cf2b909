#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace brindle::desktop {

/// Keeps what comes of one signal on a bus, from whomever.
class SignalCatcher : public QObject {
    Q_OBJECT

public:
    SignalCatcher(QDBusConnection bus, const QString& interface, const QString& name) {
        bus.connect({}, {}, interface, name, this, SLOT(receive(QDBusMessage)));
    }

    QList<QDBusMessage> messages;

public slots:
    void receive(const QDBusMessage& message) { messages.append(message); }
};

} // namespace brindle::desktop
