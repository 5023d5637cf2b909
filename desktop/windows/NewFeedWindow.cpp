#include "desktop/windows/NewFeedWindow.hpp"

#include "desktop/windows/DialogPane.hpp"
#include "desktop/windows/NewFeedGroupPane.hpp"
#include "desktop/windows/NewFeedItemPane.hpp"

#include <QVBoxLayout>
#include <utility>

namespace brindle::desktop {

NewFeedWindow::NewFeedWindow(WindowEnvironment environment) : QtWindow(environment), _environment(std::move(environment)) {
    auto* const place = new QWidget(&widget());
    auto* const column = new QVBoxLayout(place);
    column->setContentsMargins(0, 0, 0, 0);
    widget().setCentralWidget(place);
    setStyleMask(titled | closable);
}

void NewFeedWindow::connect(const std::shared_ptr<NewFeedWindow>& window, NewFeedWindowController& controller) {
    const std::weak_ptr<NewFeedWindow> weak = window;
    controller.itemPaneDidLoad = [weak](NewFeedItemViewController& pane) {
        pane.view = std::make_shared<WidgetView>(new NewFeedItemPane(pane));
        pane.showFeedsPicker = [weak](const std::shared_ptr<FeedsPickerViewController>& picker) {
            if (const auto shown = weak.lock())
                shown->showPicker(picker);
        };
    };
    controller.groupPaneDidLoad = [](NewFeedGroupViewController& pane) {
        pane.view = std::make_shared<WidgetView>(new NewFeedGroupPane(pane));
    };
    controller.showPane = [weak](NewFeedPane& pane) {
        if (const auto shown = weak.lock())
            shown->showPane(pane.view);
    };
}

void NewFeedWindow::showPane(const std::shared_ptr<View>& pane) {
    if (_pane)
        _pane->removeFromSuperview();
    _pane = std::dynamic_pointer_cast<WidgetView>(pane);
    auto* const shown = _pane ? static_cast<DialogPane*>(_pane->widget()) : nullptr;
    if (!shown)
        return;
    widget().centralWidget()->layout()->addWidget(shown);
    shown->show();
    shown->focusFirstField();
}

void NewFeedWindow::showPicker(const std::shared_ptr<FeedsPickerViewController>& controller) {
    _picker = FeedsPickerWindow::make(_environment, controller, widget());
    _picker->didHide = [this] {
        QMetaObject::invokeMethod(
            this, [this] { _picker.reset(); }, Qt::QueuedConnection);
    };
    _picker->show();
}

} // namespace brindle::desktop
