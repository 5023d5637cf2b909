#pragma once

#include "platform/Alert.hpp"

class QWidget;

namespace brindle::desktop {

/// Alerts as message boxes. Neither kind waits: the answer always comes later. Thread: main.
class QtAlertPresenter : public AlertPresenter {
public:
    /// The window that a sheet would hang on; null where there is none.
    static QWidget* keyWindow();

    void runModal(const Alert& alert, Answer answer) override;
    void beginSheet(const Alert& alert, Answer answer) override;
};

} // namespace brindle::desktop
