#pragma once

#include <QPushButton>

namespace brindle::desktop {

/// A push button whose text doesn't touch its edges, in whatever style. Thread: main.
class RoomyButton : public QPushButton {
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override {
        constexpr int room = 8; // points
        const int needed = fontMetrics().horizontalAdvance(text()) + 4 * room;
        return QPushButton::sizeHint().expandedTo({needed, 0});
    }
};

} // namespace brindle::desktop
