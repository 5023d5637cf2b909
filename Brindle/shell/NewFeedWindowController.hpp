#pragma once

#include "Brindle/shell/NewFeedGroupViewController.hpp"
#include "Brindle/shell/NewFeedItemViewController.hpp"
#include "platform/Window.hpp"

#include <functional>
#include <memory>
#include <variant>

namespace brindle {

/// The window that adds a feed or a group, or changes one. Made once. Thread: main.
class NewFeedWindowController : public WindowDelegate, public std::enable_shared_from_this<NewFeedWindowController> {
public:
    /// A feed; null for a new one.
    struct Item {
        std::shared_ptr<FeedItem> feedItem;
    };
    /// A group; null for a new one.
    struct Group {
        std::shared_ptr<FeedGroup> feedGroup;
    };
    using Kind = std::variant<Item, Group>;

    static std::shared_ptr<NewFeedWindowController> make(NewFeedEnvironment environment, std::shared_ptr<Window> window);

    Kind kind; ///< what the window is about when it is shown next

    /// Shows a pane in the window, in place of the one before, pinned to all sides. May be empty.
    std::function<void(NewFeedPane& pane)> showPane;
    /// Makes what shows a pane, when the pane is made. May be empty.
    std::function<void(NewFeedItemViewController& pane)> itemPaneDidLoad;
    std::function<void(NewFeedGroupViewController& pane)> groupPaneDidLoad;

    const std::shared_ptr<NewFeedItemViewController>& newFeedItemViewController();
    const std::shared_ptr<NewFeedGroupViewController>& newFeedGroupViewController();
    /// Null before the window is first shown.
    const std::shared_ptr<NewFeedPane>& currentChildViewController() const { return _currentChildViewController; }

    void windowDidLoad();
    void showWindow();
    void windowWillClose() override;

private:
    NewFeedWindowController(NewFeedEnvironment environment, std::shared_ptr<Window> window)
        : _environment(std::move(environment)), _window(std::move(window)) {}
    std::shared_ptr<NewFeedPane> paneOfKind();

    const NewFeedEnvironment _environment;
    const std::shared_ptr<Window> _window;
    std::shared_ptr<NewFeedItemViewController> _newFeedItemViewController;
    std::shared_ptr<NewFeedGroupViewController> _newFeedGroupViewController;
    std::shared_ptr<NewFeedPane> _currentChildViewController;
};

} // namespace brindle
