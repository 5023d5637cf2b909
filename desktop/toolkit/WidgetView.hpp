#pragma once

#include "platform/View.hpp"

#include <QPointer>
#include <QWidget>

namespace brindle::desktop {

/// A widget as the program's controllers hand it on. What shows it makes itself the widget's parent for as long; the widget dies with this
/// object. Thread: main.
class WidgetView : public View {
public:
    /// Takes the widget, which has no parent.
    explicit WidgetView(QWidget* widget) : _widget(widget) {}
    ~WidgetView() override { delete _widget.data(); }
    WidgetView(const WidgetView&) = delete;
    WidgetView& operator=(const WidgetView&) = delete;

    /// Null when what showed it took it into the grave.
    QWidget* widget() const { return _widget; }

    void removeFromSuperview() override {
        if (!_widget)
            return;
        _widget->hide();
        _widget->setParent(nullptr);
    }

private:
    const QPointer<QWidget> _widget;
};

} // namespace brindle::desktop
