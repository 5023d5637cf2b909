#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "html/Element.hpp"
#include "html/TagId.hpp"

namespace brindle::html {

/// The kinds of element that end a look down the stack of open elements. The first four are the scopes of the HTML standard
/// (section 13.2.4.2); the others are the loops of section 13.2.6 that stop at certain elements.
enum class Boundary : std::uint8_t {
    scope,
    listItemScope,
    buttonScope,
    tableScope,
    special,       ///< The special category: where the search for the element of a stray end tag stops.
    listItem,      ///< Special but for `address`, `div` and `p`: where the search for an open `li`, `dd` or `dt` stops.
    insertionMode, ///< What "reset the insertion mode appropriately" decides by.
};

inline constexpr std::size_t boundaryCount = 7;

/// What tree construction has to know of an element, one bit for each question.
using ElementTraits = std::uint32_t;

namespace traits {

constexpr ElementTraits bounds(Boundary boundary) noexcept {
    return ElementTraits{1} << static_cast<unsigned>(boundary);
}

inline constexpr ElementTraits allBoundaries = (ElementTraits{1} << boundaryCount) - 1;
inline constexpr ElementTraits special = bounds(Boundary::special);

/// The end tags that may be implied (section 13.2.6.3).
inline constexpr ElementTraits impliedEnd = ElementTraits{1} << 8;

/// `table` and the parts of one in which stray content goes before the table.
inline constexpr ElementTraits fosters = ElementTraits{1} << 9;

/// `h1` to `h6`.
inline constexpr ElementTraits heading = ElementTraits{1} << 10;

/// Start tags that end foreign content (section 13.2.6.5).
inline constexpr ElementTraits breaksOutOfForeign = ElementTraits{1} << 11;

/// The integration points of section 13.2.6, and MathML's `annotation-xml`, in which an `svg` is read by the rules of HTML.
inline constexpr ElementTraits mathMlTextIntegrationPoint = ElementTraits{1} << 12;
inline constexpr ElementTraits htmlIntegrationPoint = ElementTraits{1} << 13;
inline constexpr ElementTraits annotation = ElementTraits{1} << 14;

/// `select`, `option` and `selectedcontent`.
inline constexpr ElementTraits selectPart = ElementTraits{1} << 15;

} // namespace traits

/// The traits of the elements of HTML, by their `TagId`.
extern const std::array<ElementTraits, tagIdCount> htmlElementTraits;

inline ElementTraits traitsOfHtml(TagId id) noexcept {
    return htmlElementTraits[static_cast<std::size_t>(id)];
}

/// The traits of an element of SVG or MathML.
ElementTraits traitsOfForeign(const Element& element) noexcept;

} // namespace brindle::html
