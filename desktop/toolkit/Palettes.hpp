#pragma once

#include <QPalette>

namespace brindle::desktop {

/// Whether letters are lighter than what is behind them. Thread: any.
inline bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace brindle::desktop
