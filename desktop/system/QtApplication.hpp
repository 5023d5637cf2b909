#pragma once

#include "desktop/system/UnlistedWindows.hpp"
#include "platform/Application.hpp"

#include <QDialog>
#include <QPointer>
#include <memory>

namespace brindle::desktop {

/// The program among the others of the desktop. Thread: main.
class QtApplication : public Application {
public:
    ~QtApplication() override { delete _aboutPanel.data(); }

    /// Whether any window of the program is on the screen, menus and tool tips apart.
    static bool hasVisibleWindow();
    /// The program was started again: brings its windows to the front, out of the task bar where all are there.
    void reopen();

    /// As an accessory the program has no windows in task bars and pagers. Under X11 only: Wayland has no way to ask for that.
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void terminate() override;
    void orderFrontStandardAboutPanel() override;
    bool isShiftKeyDown() const override;

private:
    std::unique_ptr<UnlistedWindows> _unlistedWindows; ///< while it is an accessory
    QPointer<QDialog> _aboutPanel;                     ///< made when it is first shown
};

} // namespace brindle::desktop
