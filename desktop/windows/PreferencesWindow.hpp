#pragma once

#include "Brindle/shell/PreferencesWindowController.hpp"
#include "desktop/windows/QtTabView.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <memory>

namespace brindle::desktop {

/// The window of the preferences: as large as the pane behind the selected tab. Escape closes it. Thread: main.
class PreferencesWindow : public QtWindow {
    Q_OBJECT

public:
    explicit PreferencesWindow(WindowEnvironment environment);

    /// Makes the panes of a controller, which holds this window.
    void show(PreferencesTabViewController& controller);
    using QtWindow::show;

    QtTabView& tabView() const { return *_tabView; }

    /// Of what is behind the tabs.
    void setContentSize(Size size) override;

private:
    const std::shared_ptr<QtTabView> _tabView;
};

} // namespace brindle::desktop
