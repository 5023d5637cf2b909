#include "Brindle/shell/NewFeedWindowController.hpp"

#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

std::shared_ptr<NewFeedWindowController> NewFeedWindowController::make(NewFeedEnvironment environment, std::shared_ptr<Window> window) {
    return std::shared_ptr<NewFeedWindowController>(new NewFeedWindowController(std::move(environment), std::move(window)));
}

void NewFeedWindowController::windowDidLoad() {
    _window->setDelegate(weak_from_this());
}

const std::shared_ptr<NewFeedItemViewController>& NewFeedWindowController::newFeedItemViewController() {
    if (!_newFeedItemViewController) {
        _newFeedItemViewController = NewFeedItemViewController::make(_environment);
        _newFeedItemViewController->window = _window;
        if (itemPaneDidLoad)
            itemPaneDidLoad(*_newFeedItemViewController);
    }
    return _newFeedItemViewController;
}

const std::shared_ptr<NewFeedGroupViewController>& NewFeedWindowController::newFeedGroupViewController() {
    if (!_newFeedGroupViewController) {
        _newFeedGroupViewController = std::make_shared<NewFeedGroupViewController>(_environment);
        _newFeedGroupViewController->window = _window;
        if (groupPaneDidLoad)
            groupPaneDidLoad(*_newFeedGroupViewController);
    }
    return _newFeedGroupViewController;
}

std::shared_ptr<NewFeedPane> NewFeedWindowController::paneOfKind() {
    if (const Item* const item = std::get_if<Item>(&kind)) {
        newFeedItemViewController()->feedItem = item->feedItem;
        return _newFeedItemViewController;
    }
    newFeedGroupViewController()->feedGroup = std::get<Group>(kind).feedGroup;
    return _newFeedGroupViewController;
}

void NewFeedWindowController::showWindow() {
    assertMainThread();
    // What the window was about until now is given up, as by "Cancel", before it is about something else.
    if (_currentChildViewController && _window->isVisible())
        _currentChildViewController->windowWillClose();
    _currentChildViewController = paneOfKind();
    if (showPane)
        showPane(*_currentChildViewController);
    _currentChildViewController->viewWillAppear();
    _window->show();
}

void NewFeedWindowController::windowWillClose() {
    if (_currentChildViewController)
        _currentChildViewController->windowWillClose();
}

} // namespace brindle
