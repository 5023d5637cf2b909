#pragma once

namespace brindle {

/// Something that a window or a menu item shows in its place. Thread: main.
class View {
public:
    virtual ~View() = default;
    /// Takes it out of whatever shows it.
    virtual void removeFromSuperview() = 0;
};

} // namespace brindle
