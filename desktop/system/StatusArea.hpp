#pragma once

#include "desktop/system/StatusNotifierItem.hpp"
#include "desktop/system/TrayEvents.hpp"
#include "desktop/toolkit/MenuView.hpp"
#include "platform/ResponderChain.hpp"
#include "platform/StatusItem.hpp"

#include <QDBusConnection>
#include <QIcon>
#include <QObject>
#include <QSystemTrayIcon>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace brindle::desktop {

/// The program's place in the status area, by whichever of the two ways the desktop has: items on the session bus, else the older tray of
/// X11. Where there is none, somebody else has to show the menu. Thread: main.
class StatusArea : public QObject, public StatusItem {
    Q_OBJECT

public:
    explicit StatusArea(QDBusConnection bus);
    ~StatusArea() override;

    /// Who takes the actions of the menu. Before the menu is first shown.
    void setResponderChain(std::shared_ptr<ResponderChain> chain);
    /// What else the tool tip tells, asked at each change of the item; UTF-8, empty for nothing.
    void setDetails(std::function<std::string()> details) { _details = std::move(details); }
    /// The details may be others.
    void detailsChanged() { updateLater(); }
    /// Whether a person sees the item somewhere.
    bool hasStatusArea() const;
    /// As the program's controllers set it; null: none yet.
    const std::shared_ptr<Menu>& menu() const { return _menu; }
    /// The menu on the screen; null before it was first shown.
    MenuView* menuView() const { return _view.get(); }

    void setImage(const std::optional<Image>& image) override;
    void setImagePosition(ImagePosition) override {}
    void setTitle(const std::string& title) override;
    void setToolTip(const std::string& text) override;
    void setHighlights(bool) override {}
    void setMenu(const std::shared_ptr<Menu>& menu) override;

signals:
    /// Also when it is first known.
    void hasStatusAreaChanged();
    void menuChanged();

private:
    void chooseWay();
    void makeTrayIcon();
    void updateLater();
    void update();
    void draw();
    QString toolTip() const;
    void showMenu(const QPoint& place);
    void connectMenu();

    StatusNotifierItem _item;
    TrayEvents _trayEvents;
    std::unique_ptr<QSystemTrayIcon> _trayIcon; ///< while there are no items on the bus
    std::shared_ptr<ResponderChain> _chain;
    std::shared_ptr<Menu> _menu;
    std::unique_ptr<MenuView> _view;
    std::optional<Image> _image;
    std::string _title;
    std::string _toolTip;
    std::optional<std::pair<Image, std::string>> _drawn; ///< image and title of the two below
    DBusImages _images;
    QIcon _icon;
    std::function<std::string()> _details; ///< empty: nothing
    bool _isUpdateDue = false;
    std::optional<bool> _hadStatusArea; ///< as was told; absent: nothing yet
};

} // namespace brindle::desktop
