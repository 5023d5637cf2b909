#pragma once

#include "desktop/system/DBusTypes.hpp"
#include "desktop/system/MenuExport.hpp"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPoint>
#include <memory>
#include <optional>

namespace brindle::desktop {

/// The program's item in the status area of desktops that show such items (the StatusNotifierItem specification): registered while there is
/// somebody to register with, again after each restart of that. Thread: main.
class StatusNotifierItem : public QObject {
    Q_OBJECT

public:
    static constexpr const char* itemPath = "/StatusNotifierItem";
    static constexpr const char* menuPath = "/MenuBar";

    /// How it looks.
    struct Look {
        DBusImages icon;
        QString title;       ///< the program, in words
        QString toolTip;     ///< its first line is shown as a heading
        QString description; ///< of the icon, for who can't see it
    };

    explicit StatusNotifierItem(QDBusConnection bus);
    ~StatusNotifierItem() override;

    const Look& look() const { return _look; }
    /// Panels are told of what differs.
    void setLook(Look look);
    /// What panels show that draw menus themselves; null: nothing.
    void setMenu(std::shared_ptr<MenuExport> menu);

    /// Whether a panel shows items, as far as is known.
    bool isShown() const { return _isShown.value_or(false); }
    /// Whether it is known: false until the first answer.
    bool isAnswered() const { return _isShown.has_value(); }

signals:
    /// Also when it is first known, in a later turn than the making.
    void isShownChanged();
    /// The person clicked it; `place` is on the screen.
    void activated(const QPoint& place);
    void titleChanged();
    /// Or its description.
    void iconChanged();
    void toolTipChanged();

private slots:
    void hostRegistered();
    void hostUnregistered();

private:
    void lookForWatcher();
    void registerItem();
    void askForHost();
    void setState(bool isRegistered, bool hasHost);

    QDBusConnection _bus;
    QDBusServiceWatcher _watcher;
    const QString _service;
    Look _look;
    std::shared_ptr<MenuExport> _menu;
    bool _isRegistered = false;
    bool _hasHost = false;
    std::optional<bool> _isShown; ///< absent: not known yet
};

} // namespace brindle::desktop
