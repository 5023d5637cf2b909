#include "desktop/system/StatusArea.hpp"

#include "desktop/system/StatusIcon.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

namespace brindle::desktop {

namespace {

/// Panels under X11 tell places in pixels; the toolkit counts points from each screen's corner.
QPoint inPoints(const QPoint& place) {
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return place;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        const QRect pixels(corner, screen->geometry().size() * screen->devicePixelRatio());
        if (pixels.contains(place))
            return corner + (place - corner) / screen->devicePixelRatio();
    }
    return place;
}

} // namespace

StatusArea::StatusArea(QDBusConnection bus) : _item(std::move(bus)) {
    connect(&_item, &StatusNotifierItem::isShownChanged, this, [this] { chooseWay(); });
    connect(&_item, &StatusNotifierItem::activated, this, [this](const QPoint& place) { showMenu(inPoints(place)); });
    connect(&_trayEvents, &TrayEvents::happened, this, [this] { chooseWay(); });
}

StatusArea::~StatusArea() = default;

void StatusArea::setResponderChain(std::shared_ptr<ResponderChain> chain) {
    _chain = std::move(chain);
    connectMenu();
}

bool StatusArea::hasStatusArea() const {
    return _item.isShown() || (_trayIcon && QSystemTrayIcon::isSystemTrayAvailable());
}

/// The toolkit's icon is made only where it is known to be needed: once it has found items on the bus it never goes to a tray. It finds the
/// tray by itself, whenever that comes.
void StatusArea::chooseWay() {
    if (!_item.isAnswered())
        return;
    if (_item.isShown())
        _trayIcon.reset();
    else if (!_trayIcon)
        makeTrayIcon();
    const bool isThere = hasStatusArea();
    if (std::exchange(_hadStatusArea, isThere) != isThere)
        emit hasStatusAreaChanged();
}

void StatusArea::makeTrayIcon() {
    _trayIcon = std::make_unique<QSystemTrayIcon>();
    connect(_trayIcon.get(), &QSystemTrayIcon::activated, this, [this] { showMenu(QCursor::pos()); });
    updateLater();
}

void StatusArea::setImage(const std::optional<Image>& image) {
    _image = image;
    updateLater();
}

void StatusArea::setTitle(const std::string& title) {
    _title = title;
    updateLater();
}

void StatusArea::setToolTip(const std::string& text) {
    _toolTip = text;
    updateLater();
}

/// Image, title and tool tip are set one after the other, and drawn once.
void StatusArea::updateLater() {
    if (!std::exchange(_isUpdateDue, true))
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
}

QString StatusArea::toolTip() const {
    std::string text = _toolTip;
    const auto append = [&](const std::string& line) {
        if (!line.empty())
            text += '\n' + line;
    };
    append(_image->isSlashed() ? localized("Updates are paused.") : std::string());
    append(_details ? _details() : std::string());
    return toQString(text);
}

void StatusArea::draw() {
    _images.clear();
    _icon = QIcon();
    for (const int side : statusicon::sides) {
        const QImage drawing = statusicon::drawing(*_image, _title, side);
        _images.append(DBusImage::make(drawing));
        _icon.addPixmap(QPixmap::fromImage(drawing));
    }
}

/// Each change of the menu sets all anew, most of it as it was.
void StatusArea::update() {
    _isUpdateDue = false;
    if (!_image)
        return;
    if (std::pair wanted(*_image, _title); _drawn != wanted) {
        _drawn = std::move(wanted);
        draw();
    }
    const QString toolTip = this->toolTip();
    _item.setLook({_images, QGuiApplication::applicationDisplayName(), toolTip, toolTip});
    if (!_trayIcon)
        return;
    if (_trayIcon->icon().cacheKey() != _icon.cacheKey())
        _trayIcon->setIcon(_icon);
    _trayIcon->setToolTip(toolTip);
    _trayIcon->show();
}

void StatusArea::setMenu(const std::shared_ptr<Menu>& menu) {
    _menu = menu;
    connectMenu();
    emit menuChanged();
}

void StatusArea::connectMenu() {
    _view.reset();
    _item.setMenu(_menu && _chain ? MenuExport::make(_menu, _chain) : nullptr);
}

void StatusArea::showMenu(const QPoint& place) {
    if (!_menu || !_chain)
        return;
    if (!_view)
        _view = std::make_unique<MenuView>(_menu, _chain);
    if (_view->isVisible())
        return _view->hide();
    // Some panels don't know the place.
    _view->popup(place.isNull() ? QCursor::pos() : place);
    _view->activateWindow();
}

} // namespace brindle::desktop
