#pragma once

#include "platform/Application.hpp"

#include <QDialog>
#include <QPointer>

namespace brindle::desktop {

/// The program among the others of the desktop. Thread: main.
class QtApplication : public Application {
public:
    ~QtApplication() override { delete _aboutPanel.data(); }

    /// What an accessory's windows look like in lists of windows is theirs to ask.
    ActivationPolicy activationPolicy() const { return _policy; }
    /// Whether any window of the program is on the screen, menus and tool tips apart.
    static bool hasVisibleWindow();

    void setActivationPolicy(ActivationPolicy policy) override { _policy = policy; }
    void activate() override;
    void terminate() override;
    void orderFrontStandardAboutPanel() override;
    bool isShiftKeyDown() const override;

private:
    ActivationPolicy _policy = ActivationPolicy::regular;
    QPointer<QDialog> _aboutPanel; ///< made when it is first shown
};

} // namespace brindle::desktop
