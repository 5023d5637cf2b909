#include "desktop/system/QtApplication.hpp"

#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

namespace brindle::desktop {

namespace {

constexpr double iconSide = 64;

/// The toolkit's icon in the tray of X11 is a window too, of those that no window manager sees.
bool isWindow(const QWidget* widget) {
    const Qt::WindowType type = widget->windowType();
    const bool isManaged = !widget->windowFlags().testFlag(Qt::BypassWindowManagerHint);
    return widget->isVisible() && isManaged && (type == Qt::Window || type == Qt::Dialog || type == Qt::Tool);
}

QWidgetList windows() {
    QWidgetList found;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(found), isWindow);
    return found;
}

QLabel* label(const QString& text, qreal scale, bool bold) {
    auto* const made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    made->setAlignment(Qt::AlignHCenter);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = made->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    made->setFont(font);
    return made;
}

QDialog* makeAboutPanel() {
    auto* const panel = new QDialog;
    panel->setObjectName(QStringLiteral("about"));
    panel->setWindowTitle(toQString(localized("aboutMenuTitle")));
    auto* const icon = new QLabel;
    icon->setPixmap(images::pixmap(Image::named("brindle"), {iconSide, iconSide}, panel->devicePixelRatioF()));
    icon->setAlignment(Qt::AlignHCenter);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->setCenterButtons(true);
    QPushButton* const close = buttons->button(QDialogButtonBox::Close);
    close->setText(toQString(localized("Close")));
    close->setIcon(QIcon());
    QObject::connect(buttons, &QDialogButtonBox::rejected, panel, &QDialog::close);
    auto* const layout = new QVBoxLayout(panel);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->addWidget(icon);
    layout->addWidget(label(QStringLiteral("Brindle"), 1.5, true));
    layout->addWidget(label(toQString(localized("Version")) + QStringLiteral(" " BRINDLE_VERSION), 1.0, false));
    layout->addWidget(label(toQString(localized("A feed reader in the status area.")), 1.0, false));
    layout->addSpacing(8);
    layout->addWidget(buttons);
    return panel;
}

} // namespace

bool QtApplication::hasVisibleWindow() {
    return !windows().isEmpty();
}

void QtApplication::reopen() {
    const QWidgetList all = windows();
    if (std::all_of(all.begin(), all.end(), [](const QWidget* widget) { return widget->isMinimized(); })) {
        for (QWidget* const widget : all)
            widget->setWindowState(widget->windowState() & ~Qt::WindowMinimized);
    }
    activate();
}

void QtApplication::setActivationPolicy(ActivationPolicy policy) {
    if (policy == ActivationPolicy::regular)
        _unlistedWindows.reset();
    else if (!_unlistedWindows)
        _unlistedWindows = std::make_unique<UnlistedWindows>();
}

void QtApplication::activate() {
    const QWidget* const active = QApplication::activeWindow();
    for (QWidget* const widget : windows()) {
        widget->raise();
        if (!active || active == widget)
            widget->activateWindow();
    }
}

void QtApplication::terminate() {
    // Not `quit`, which any window could refuse.
    QCoreApplication::exit(0);
}

void QtApplication::orderFrontStandardAboutPanel() {
    if (!_aboutPanel)
        _aboutPanel = makeAboutPanel();
    _aboutPanel->show();
    _aboutPanel->raise();
    _aboutPanel->activateWindow();
}

bool QtApplication::isShiftKeyDown() const {
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
}

} // namespace brindle::desktop
