#include "desktop/toolkit/BoxColors.hpp"

#include "desktop/toolkit/Palettes.hpp"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace brindle::desktop {

BoxColors::BoxColors(QWidget* widget) : QObject(widget), _widget(widget) {}

void BoxColors::apply(QWidget* widget) {
    auto* const colors = new BoxColors(widget);
    widget->installEventFilter(colors);
    colors->follow();
}

bool BoxColors::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        follow();
    return QObject::eventFilter(object, event);
}

void BoxColors::follow() {
    const QPalette program = QApplication::palette(_widget);
    const QColor window = program.color(QPalette::Window);
    constexpr int lighter = 190; // percent
    const QColor base = isDark(program) ? window.lighter(lighter) : program.color(QPalette::Base);
    if (_widget->palette().color(QPalette::Base) == base)
        return;
    QPalette own;
    own.setColor(QPalette::Base, base);
    _widget->setPalette(own);
}

} // namespace brindle::desktop
