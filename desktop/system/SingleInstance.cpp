#include "desktop/system/SingleInstance.hpp"

#include "desktop/system/SingleInstanceAdaptor.hpp"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace brindle::desktop {

namespace {

const QString interface = QStringLiteral("org.freedesktop.Application");
constexpr int answerLimit = 10'000; // milliseconds

} // namespace

SingleInstance::SingleInstance(QDBusConnection bus, QString name) : _bus(std::move(bus)), _name(std::move(name)) {
    new SingleInstanceAdaptor(*this);
}

SingleInstance::~SingleInstance() {
    if (!_isFirst || !_bus.isConnected())
        return;
    _bus.unregisterObject(path());
    _bus.unregisterService(_name);
}

/// The name's own, as the specification has it.
QString SingleInstance::path() const {
    return QLatin1Char('/') + QString(_name).replace(QLatin1Char('.'), QLatin1Char('/')).replace(QLatin1Char('-'), QLatin1Char('_'));
}

bool SingleInstance::acquire() {
    if (!_bus.isConnected())
        return true;
    // Before the name, so that nobody who finds the name finds nothing there.
    _bus.registerObject(path(), this, QDBusConnection::ExportAdaptors);
    const auto answer = _bus.interface()->registerService(
        _name, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    _isFirst = !answer.isValid() || answer.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!_isFirst)
        _bus.unregisterObject(path());
    return _isFirst;
}

bool SingleInstance::handOver(const QStringList& uris, const QVariantMap& platformData) const {
    QDBusMessage call =
        QDBusMessage::createMethodCall(_name, path(), interface, uris.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open"));
    if (!uris.isEmpty())
        call << uris;
    call << platformData;
    return _bus.call(call, QDBus::Block, answerLimit).type() == QDBusMessage::ReplyMessage;
}

bool SingleInstance::handOverAction(const QString& action, const QVariantMap& platformData) const {
    QDBusMessage call = QDBusMessage::createMethodCall(_name, path(), interface, QStringLiteral("ActivateAction"));
    call << action << QVariantList() << platformData;
    return _bus.call(call, QDBus::Block, answerLimit).type() == QDBusMessage::ReplyMessage;
}

QVariantMap SingleInstance::platformData() {
    QVariantMap result;
    for (const auto& [name, key] :
        {std::pair("XDG_ACTIVATION_TOKEN", "activation-token"), std::pair("DESKTOP_STARTUP_ID", "desktop-startup-id")}) {
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            result.insert(QLatin1String(key), value);
    }
    return result;
}

} // namespace brindle::desktop
