#pragma once

#include "platform/Control.hpp"
#include "platform/MenuObserver.hpp"

#include <QWidget>
#include <functional>
#include <memory>

namespace brindle::desktop {

/// Keeps a widget true to a control for as long as the widget lives: enabled, hidden, and whatever `show` puts into it. A child of its
/// widget. The control outlives the widget, or at least a person's use of it. Thread: main.
class ControlBinding : public QObject {
    Q_OBJECT

public:
    /// A widget without a parent is left to whoever shows it: it is hidden with its control, but not shown.
    ControlBinding(Control& control, QWidget* widget, std::function<void()> show);

    /// The widget that was bound to a control, among `root` and all below it; null where there is none.
    static QWidget* widgetOf(const Control& control, QWidget* root);

    /// Kept with the binding: what else must live as long.
    void keep(std::shared_ptr<MenuObserver> observer) { _kept = std::move(observer); }

private:
    void update();

    Control& _control;
    QWidget* const _widget;
    const std::function<void()> _show;
    Control::Token _token;
    std::shared_ptr<MenuObserver> _kept;
};

} // namespace brindle::desktop
