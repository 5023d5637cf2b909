#include "desktop/windows/FeedsPickerWindow.hpp"

#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/DialogPane.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

namespace brindle::desktop {

std::shared_ptr<FeedsPickerWindow> FeedsPickerWindow::make(
    WindowEnvironment environment, std::shared_ptr<FeedsPickerViewController> controller, QWidget& owner) {
    const std::shared_ptr<FeedsPickerWindow> window(new FeedsPickerWindow(std::move(environment), std::move(controller), owner));
    window->_controller->window = window;
    window->_controller->feedsTableView = window->_table;
    window->_controller->viewDidLoad();
    return window;
}

FeedsPickerWindow::FeedsPickerWindow(WindowEnvironment environment, std::shared_ptr<FeedsPickerViewController> controller, QWidget& owner)
    : QtWindow(std::move(environment)), _controller(std::move(controller)) {
    // In points.
    constexpr int width = 420;
    constexpr int height = 300;
    FeedsPickerViewController* const picker = _controller.get();
    auto* const pane = new DialogPane({[picker] { picker->handleOK(); }, [picker] { picker->handleCancel(); }}, &widget());
    auto* const question = new QLabel(toQString(localized("This page has several feeds. Which do you want?")), pane);
    question->setWordWrap(true);
    _table = std::make_shared<FeedsPickerTable>(pane);
    pane->content().addWidget(question);
    pane->content().addWidget(&_table->widget(), 1);
    widget().setCentralWidget(pane);
    setTitle(localized("Choose Feeds"));
    setStyleMask(titled | closable | resizable);
    widget().resize(width, height);
    widget().setWindowModality(Qt::WindowModal);
    widget().winId(); // makes the window of the system, which is what belongs to another
    owner.winId();
    widget().windowHandle()->setTransientParent(owner.windowHandle());
    _table->widget().setFocus();
}

FeedsPickerWindow::~FeedsPickerWindow() = default;

bool FeedsPickerWindow::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Hide && didHide)
        didHide();
    return QtWindow::eventFilter(object, event);
}

} // namespace brindle::desktop
