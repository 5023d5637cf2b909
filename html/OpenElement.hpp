#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "html/Element.hpp"
#include "html/ElementTraits.hpp"
#include "html/TagId.hpp"

namespace brindle::html {

struct FormattingElement;

/// One entry of the stack of open elements.
struct OpenElement {
    Element* element = nullptr;
    OpenElement* below = nullptr; ///< Towards the root of the tree.
    OpenElement* above = nullptr;

    /// The next entry below and above whose element has the same name.
    OpenElement* sameBelow = nullptr;
    OpenElement* sameAbove = nullptr;

    /// The nearest entry, from this one on down, that is a boundary of each kind. The lowest entry is one of every kind.
    std::array<OpenElement*, boundaryCount> boundaries{};

    /// Its entry among the active formatting elements, if it has one.
    FormattingElement* formatting = nullptr;

    ElementTraits traits = 0;
    std::uint32_t nameSlot = 0;   ///< Tells the names of elements apart, and elements of HTML from foreign ones.
    std::uint32_t serial = 0;     ///< Grows with each element that is opened, from 1.
    std::uint32_t foreignRun = 0; ///< The same for foreign elements with no element of HTML between them; 0 for elements of HTML.
    TagId id = TagId::unknown;    ///< Of foreign elements always `unknown`.

    bool isHtml() const noexcept { return foreignRun == 0; }

    const OpenElement* boundary(Boundary kind) const noexcept { return boundaries[static_cast<std::size_t>(kind)]; }
    OpenElement* boundary(Boundary kind) noexcept { return boundaries[static_cast<std::size_t>(kind)]; }
};

} // namespace brindle::html
