#pragma once

#include "foundation/Color.hpp"

#include <optional>

namespace brindle {

/// How a title differs from plain text.
struct TextStyle {
    bool bold = false;          ///< the bold system font at the system font size
    std::optional<Color> color; ///< of the letters

    bool isPlain() const { return !bold && !color; }

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

} // namespace brindle
