#pragma once

#include "foundation/PropertyList.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace brindle {

/// A colour by its parts of red, green, blue and opacity, each from 0 to 1. Thread: a value.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1; ///< 1 is opaque

    friend bool operator==(const Color&, const Color&) = default;

    /// The opaque colour of "#rrggbb", digits in either case; absent for any other text.
    static std::optional<Color> make(std::string_view text);

    /// "#rrggbb" in lower case, each part at its nearest step; the opacity is not told.
    std::string hexString() const;

    /// The bytes of a keyed archive with this colour as its root, in the form of the original platform's calibrated colours: class
    /// "NSColor", "NSColorSpace" 1, and "NSRGB" with the parts as ASCII text "r g b" (or "r g b a"), ended by a zero byte.
    tl::expected<std::string, PropertyList::Error> archivedData() const;

    /// The colour of such an archive, of its form for gray colours ("NSColorSpace" 3 or 4, "NSWhite" with "w" or "w a") as well. Absent for
    /// any other bytes. Parts outside 0 to 1 count as the nearer end.
    static std::optional<Color> unarchive(std::string_view bytes);

    static const Color black;
    static const Color systemGray; ///< #8e8e93
};

} // namespace brindle
