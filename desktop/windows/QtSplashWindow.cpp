#include "desktop/windows/QtSplashWindow.hpp"

#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace brindle::desktop {

namespace {

// In points.
constexpr int margin = 32;
constexpr int iconSide = 96;
constexpr int textWidth = 420;
constexpr int buttonWidth = 140;
constexpr double titleScale = 1.7;

QLabel* makeText(const std::string& text, QWidget* parent) {
    auto* const label = new QLabel(toQString(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    label->setFixedWidth(textWidth);
    return label;
}

QLabel* makeTitle(const std::string& text, QWidget* parent) {
    QLabel* const label = makeText(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

std::shared_ptr<QtSplashWindow> QtSplashWindow::make(WindowEnvironment environment, std::shared_ptr<StatusMenu> statusMenu) {
    const std::shared_ptr<QtSplashWindow> splash(new QtSplashWindow(std::move(environment), std::move(statusMenu)));
    splash->_window->setDelegate(splash);
    return splash;
}

QtSplashWindow::QtSplashWindow(WindowEnvironment environment, std::shared_ptr<StatusMenu> statusMenu)
    : _window(std::make_unique<QtWindow>(std::move(environment))), _statusMenu(std::move(statusMenu)),
      _place(makeText({}, &_window->widget())), _placeObserver(_statusMenu->observe([this] { showPlace(); })) {
    _window->setTitle(localized("Welcome to Brindle"));
    _window->setStyleMask(Window::titled | Window::closable);
    _window->widget().setCentralWidget(makeContent());
    showPlace();
}

QWidget* QtSplashWindow::makeContent() {
    auto* const content = new QWidget(&_window->widget());
    auto* const icon = new QLabel(content);
    icon->setAlignment(Qt::AlignHCenter);
    icon->setPixmap(images::pixmap(Image::named("brindle"), {iconSide, iconSide}, icon->devicePixelRatioF()));
    auto* const button = new QPushButton(toQString(localized("Get Started")), content);
    button->setDefault(true);
    button->setMinimumWidth(buttonWidth);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin / 2);
    column->addWidget(icon);
    column->addWidget(makeTitle(localized("Welcome to Brindle"), content));
    column->addWidget(makeText(localized("New articles of your feeds wait in a menu, one click away."), content));
    column->addWidget(_place);
    column->addSpacing(margin / 2);
    column->addWidget(button, 0, Qt::AlignHCenter);
    QObject::connect(button, &QPushButton::clicked, _window.get(), [this] { handleClick(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        QObject::connect(new QShortcut(QKeySequence(key), content), &QShortcut::activated, _window.get(), [this] { handleClick(); });
    button->setFocus();
    return content;
}

void QtSplashWindow::showPlace() {
    const bool hasIcon = _statusMenu->isHidden();
    _place->setText(toQString(hasIcon ? localized("Look for the Brindle icon in the bar of your desktop. Everything else is in its menu.")
                                      : localized("Everything else is in the menu of the browser window.")));
}

void QtSplashWindow::close() {
    _isClosing = true;
    _window->close();
    _isClosing = false;
}

void QtSplashWindow::windowWillClose() {
    // The program goes on once the window is gone.
    if (!_isClosing)
        QMetaObject::invokeMethod(
            _window.get(), [this] { handleClick(); }, Qt::QueuedConnection);
}

} // namespace brindle::desktop
