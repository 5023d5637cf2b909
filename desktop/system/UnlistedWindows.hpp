#pragma once

#include <QObject>

namespace brindle::desktop {

/// Keeps the program's windows out of task bars and pagers, each from when it is next shown (Extended Window Manager Hints,
/// "_NET_WM_STATE"). Does nothing where the display is not of X11. Thread: main.
class UnlistedWindows : public QObject {
    Q_OBJECT

public:
    /// Needs the application object.
    UnlistedWindows();

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace brindle::desktop
