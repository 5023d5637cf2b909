#pragma once

#include "desktop/toolkit/WidgetView.hpp"

#include <QWidgetAction>
#include <memory>

namespace brindle::desktop {

/// Shows a view in a menu, in place of text. Views that are no widgets show nothing. Thread: main.
class ViewAction : public QWidgetAction {
public:
    ViewAction(const std::shared_ptr<View>& view, QObject* parent)
        : QWidgetAction(parent), _view(std::dynamic_pointer_cast<WidgetView>(view)) {}

protected:
    QWidget* createWidget(QWidget* parent) override {
        QWidget* const widget = _view ? _view->widget() : nullptr;
        if (widget)
            widget->setParent(parent);
        return widget;
    }
    void deleteWidget(QWidget* widget) override {
        widget->hide();
        widget->setParent(nullptr);
    }

private:
    const std::shared_ptr<WidgetView> _view;
};

} // namespace brindle::desktop
