#pragma once

namespace brindle {

/// A width and a height, in points. Thread: a value.
struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

} // namespace brindle
