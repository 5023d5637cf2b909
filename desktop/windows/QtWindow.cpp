#include "desktop/windows/QtWindow.hpp"

#include "desktop/toolkit/ControlBinding.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr std::chrono::milliseconds frameDelay(500);

} // namespace

QtWindow::QtWindow(WindowEnvironment environment) : _environment(std::move(environment)), _widget(std::make_unique<QMainWindow>()) {
    _widget->installEventFilter(this);
    _frameTimer.setSingleShot(true);
    _frameTimer.setInterval(frameDelay);
    connect(&_frameTimer, &QTimer::timeout, this, &QtWindow::saveFrame);
}

QtWindow::~QtWindow() {
    _widget->removeEventFilter(this);
    if (_frameTimer.isActive())
        saveFrame();
    if (_isKey && _environment.setKeyWindowHandlers)
        _environment.setKeyWindowHandlers({});
}

void QtWindow::setHandlers(ResponderChain::Handlers handlers) {
    _handlers = std::move(handlers);
    if (_isKey && _environment.setKeyWindowHandlers)
        _environment.setKeyWindowHandlers(_handlers);
}

void QtWindow::setTitle(const std::string& title) {
    _widget->setWindowTitle(titleText(title));
}

void QtWindow::setLevel(Level level) {
    _level = level;
    applyFlags();
}

void QtWindow::setStyleMask(unsigned mask) {
    _styleMask = mask;
    applyFlags();
}

void QtWindow::applyFlags() {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint;
    flags.setFlag(Qt::WindowTitleHint, (_styleMask & titled) != 0);
    flags.setFlag(Qt::WindowSystemMenuHint, (_styleMask & titled) != 0);
    flags.setFlag(Qt::FramelessWindowHint, (_styleMask & titled) == 0);
    flags.setFlag(Qt::WindowCloseButtonHint, (_styleMask & closable) != 0);
    flags.setFlag(Qt::WindowMinimizeButtonHint, (_styleMask & miniaturizable) != 0);
    flags.setFlag(Qt::WindowMaximizeButtonHint, (_styleMask & resizable) != 0);
    flags.setFlag(Qt::WindowStaysOnTopHint, _level == Level::floating);
    const bool wasVisible = _widget->isVisible();
    _widget->setWindowFlags(flags);
    _widget->layout()->setSizeConstraint((_styleMask & resizable) != 0 ? QLayout::SetDefaultConstraint : QLayout::SetFixedSize);
    // Another set of flags takes a window from the screen.
    if (wasVisible)
        _widget->show();
}

void QtWindow::setFrameAutosaveName(std::string_view name) {
    _frame.emplace(_environment.defaults, std::string(name));
}

void QtWindow::setFrameUsingName(std::string_view name) {
    _isPlaced = WindowFrame(_environment.defaults, std::string(name)).restore(*_widget);
}

void QtWindow::setContentSize(Size size) {
    const QSize points = QSizeF(size.width, size.height).toSize();
    if ((_styleMask & resizable) != 0)
        _widget->resize(points);
    else if (_widget->centralWidget())
        _widget->centralWidget()->setFixedSize(points);
}

void QtWindow::makeFirstResponder(const Control& control) {
    if (QWidget* const shown = ControlBinding::widgetOf(control, _widget.get()))
        shown->setFocus(Qt::OtherFocusReason);
}

/// A window that never stood anywhere comes up over the middle of the one that a person works in, else of the screen.
void QtWindow::place() {
    if (std::exchange(_isPlaced, true))
        return;
    _widget->ensurePolished();
    _widget->layout()->activate();
    const QWidget* const active = QApplication::activeWindow();
    const QRect room = (active ? active : _widget.get())->screen()->availableGeometry();
    QRect frame(QPoint(), _widget->size());
    frame.moveCenter((active ? active->frameGeometry() : room).center());
    frame = fitted(frame, room);
    if ((_styleMask & resizable) != 0)
        _widget->resize(frame.size());
    _widget->move(frame.topLeft());
}

void QtWindow::cascadeFrom(const QtWindow& other) {
    constexpr QPoint step(24, 24); // points
    if (_widget->isMaximized() || other._widget->isMaximized())
        return;
    const QRect room = other._widget->screen()->availableGeometry();
    const QRect frame(other._widget->pos() + step, _widget->size());
    _widget->move(room.contains(frame) ? frame.topLeft() : room.topLeft());
    _isPlaced = true;
}

void QtWindow::show() {
    place();
    _widget->setWindowState(_widget->windowState() & ~Qt::WindowMinimized);
    _widget->show();
    _widget->raise();
    _widget->activateWindow();
}

void QtWindow::close() {
    if (_widget->isVisible())
        _widget->close();
}

bool QtWindow::isVisible() const {
    return _widget->isVisible() && !_widget->isMinimized();
}

bool QtWindow::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Close:
        if (const auto delegate = _delegate.lock(); delegate && _widget->isVisible())
            delegate->windowWillClose();
        break;
    case QEvent::Hide:
        if (_frameTimer.isActive())
            saveFrame();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (_frame && _widget->isVisible())
            _frameTimer.start();
        break;
    case QEvent::ActivationChange:
        keyWindowDidChange();
        break;
    default:
        break;
    }
    return false;
}

void QtWindow::keyWindowDidChange() {
    const bool isKey = _widget->isActiveWindow();
    if (isKey == std::exchange(_isKey, isKey) || !_environment.setKeyWindowHandlers)
        return;
    if (isKey)
        _environment.setKeyWindowHandlers(_handlers);
    else if (!QApplication::activeWindow()) // the window that takes over is told first
        _environment.setKeyWindowHandlers({});
}

void QtWindow::saveFrame() {
    _frameTimer.stop();
    if (_frame)
        _frame->save(*_widget);
}

} // namespace brindle::desktop
