#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QPalette>
#include <QString>

namespace brindle::desktop {

/// Gives the program dark colours while the desktop prefers them, by the setting that all desktops share (org.freedesktop.portal.Settings,
/// "org.freedesktop.appearance", "color-scheme"), where the toolkit has not taken them from the desktop itself. Thread: main.
class ColorScheme : public QObject {
    Q_OBJECT

public:
    explicit ColorScheme(QDBusConnection bus);

    /// Those that the program has of its own.
    static QPalette darkPalette();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void apply(uint preference);

    QDBusConnection _bus;
    const QPalette _desktopPalette; ///< as the toolkit began with it
    const QString _desktopStyle;
    bool _hasOwnPalette = false;
};

} // namespace brindle::desktop
