#pragma once

#include "foundation/UserDefaults.hpp"

#include <QRect>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace brindle::desktop {

/// A frame no larger than `room` and inside it, as near to its own place as that goes.
QRect fitted(QRect frame, const QRect& room);

/// Where a window stood, kept in the user's defaults as "x y width height", with " maximized" behind for one that filled the screen.
/// Thread: main.
class WindowFrame {
public:
    WindowFrame(std::shared_ptr<UserDefaults> defaults, std::string name);

    void save(const QWidget& window) const;
    /// False where nothing usable is kept: no four numbers, no area, or a place that no screen shows any more. A frame
    /// larger than all screens together is made to fit.
    bool restore(QWidget& window) const;

private:
    const std::shared_ptr<UserDefaults> _defaults;
    const std::string _key;
};

} // namespace brindle::desktop
