#include "desktop/system/ColorScheme.hpp"

#include "desktop/toolkit/Palettes.hpp"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStyle>
#include <QToolTip>
#include <utility>

namespace brindle::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");
constexpr uint prefersDark = 1;

} // namespace

ColorScheme::ColorScheme(QDBusConnection bus)
    : _bus(std::move(bus)), _desktopPalette(QApplication::palette()), _desktopStyle(QApplication::style()->name()) {
    if (!_bus.isConnected() || isDark(_desktopPalette))
        return;
    // Else the bus may not know the slot's types yet.
    qRegisterMetaType<QDBusVariant>();
    _bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

QPalette ColorScheme::darkPalette() {
    const QColor window(45, 45, 47);
    const QColor letters(235, 235, 235);
    const QColor faint(130, 130, 132);
    QPalette palette(letters, QColor(60, 60, 62), QColor(90, 90, 92), QColor(20, 20, 20), QColor(50, 50, 52), letters, Qt::white,
        QColor(30, 30, 32), window);
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    palette.setColor(QPalette::ToolTipBase, QColor(60, 60, 62));
    palette.setColor(QPalette::ToolTipText, letters);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(48, 110, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 170, 255));
    palette.setColor(QPalette::LinkVisited, QColor(190, 150, 255));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

void ColorScheme::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << group << key;
    auto* const answer = new QDBusPendingCallWatcher(_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isError())
            return;
        // Most desktops wrap the answer twice.
        const QVariant value = reply.value().variant();
        settingChanged(group, key, value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>() : QDBusVariant(value));
    });
}

void ColorScheme::settingChanged(const QString& changedGroup, const QString& changedKey, const QDBusVariant& value) {
    if (changedGroup == group && changedKey == key)
        apply(value.variant().toUInt());
}

void ColorScheme::apply(uint preference) {
    const bool isOwn = preference == prefersDark;
    if (std::exchange(_hasOwnPalette, isOwn) == isOwn)
        return;
    // A style that draws by a theme of its own would keep to light colours.
    QApplication::setStyle(isOwn ? QStringLiteral("fusion") : _desktopStyle);
    QApplication::setPalette(isOwn ? darkPalette() : _desktopPalette);
    QToolTip::setPalette(QApplication::palette());
}

} // namespace brindle::desktop
