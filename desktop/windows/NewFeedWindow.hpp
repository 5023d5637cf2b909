#pragma once

#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "Brindle/shell/NewFeedWindowController.hpp"
#include "desktop/toolkit/WidgetView.hpp"
#include "desktop/windows/FeedsPickerWindow.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <memory>

namespace brindle::desktop {

/// The window that adds and changes feeds and groups: as large as the pane in it. Thread: main.
class NewFeedWindow : public QtWindow {
    Q_OBJECT

public:
    explicit NewFeedWindow(WindowEnvironment environment);

    /// Gives a controller, which holds this window, its panes.
    static void connect(const std::shared_ptr<NewFeedWindow>& window, NewFeedWindowController& controller);

    /// Null while no picker is shown.
    FeedsPickerWindow* picker() const { return _picker.get(); }

private:
    void showPane(const std::shared_ptr<View>& pane);
    void showPicker(const std::shared_ptr<FeedsPickerViewController>& controller);

    const WindowEnvironment _environment;
    std::shared_ptr<WidgetView> _pane;
    std::shared_ptr<FeedsPickerWindow> _picker;
};

} // namespace brindle::desktop
