#include "desktop/toolkit/ControlBinding.hpp"

#include <utility>

namespace brindle::desktop {

ControlBinding::ControlBinding(Control& control, QWidget* widget, std::function<void()> show)
    : QObject(widget), _control(control), _widget(widget), _show(std::move(show)), _token(control.observe([this] { update(); })) {
    update();
}

void ControlBinding::update() {
    _widget->setEnabled(_control.isEnabled());
    // Shown without a parent it would be a window.
    if (_control.isHidden() || !_widget->isWindow())
        _widget->setHidden(_control.isHidden());
    if (_show)
        _show();
}

QWidget* ControlBinding::widgetOf(const Control& control, QWidget* root) {
    for (const ControlBinding* binding : root->findChildren<ControlBinding*>()) {
        if (&binding->_control == &control)
            return binding->_widget;
    }
    return nullptr;
}

} // namespace brindle::desktop
