#pragma once

#include "foundation/Color.hpp"
#include "platform/Control.hpp"

#include <functional>

namespace brindle {

/// Shows a colour, and lets a person choose another. Thread: main.
class ColorWell : public Control {
public:
    const Color& color() const { return _color; }
    void setColor(const Color& color) { set(_color, color); }

    std::function<void()> onChoose; ///< called when a person has chosen; may be empty

    /// A person chooses a colour.
    void choose(const Color& color) {
        setColor(color);
        // A copy: what it does may replace it.
        if (const auto chosen = onChoose)
            chosen();
    }

private:
    Color _color;
};

} // namespace brindle
