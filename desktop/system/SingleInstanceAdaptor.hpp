#pragma once

#include "desktop/system/SingleInstance.hpp"

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

namespace brindle::desktop {

/// org.freedesktop.Application over a `SingleInstance`, whose part it becomes. The methods are the interface's own. Thread: main.
class SingleInstanceAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SingleInstanceAdaptor(SingleInstance& instance) : QDBusAbstractAdaptor(&instance), _instance(instance) {}

public slots:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus.
    void Activate(const QVariantMap& platformData) {
        later([this, token = tokenOf(platformData)] { emit _instance.activated(token); });
    }
    void Open(const QStringList& uris, const QVariantMap&) {
        later([this, uris] { emit _instance.opened(uris); });
    }
    void ActivateAction(const QString& name, const QVariantList&, const QVariantMap& platformData) {
        later([this, name, token = tokenOf(platformData)] { emit _instance.actionActivated(name, token); });
    }
    // NOLINTEND(readability-identifier-naming)

private:
    /// Desktops that know only the older name have the token under that.
    static QString tokenOf(const QVariantMap& platformData) {
        const QString token = platformData.value(QStringLiteral("activation-token")).toString();
        return token.isEmpty() ? platformData.value(QStringLiteral("desktop-startup-id")).toString() : token;
    }

    /// The caller is answered first.
    template <typename Block>
    void later(Block block) {
        QMetaObject::invokeMethod(this, block, Qt::QueuedConnection);
    }

    SingleInstance& _instance;
};

} // namespace brindle::desktop
