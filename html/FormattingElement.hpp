#pragma once

#include <cstddef>
#include <cstdint>

#include "html/Element.hpp"
#include "html/TagId.hpp"

namespace brindle::html {

struct OpenElement;

/// One entry of the list of active formatting elements: an element, or a marker, which has none.
struct FormattingElement {
    Element* element = nullptr;
    OpenElement* open = nullptr; ///< Its entry on the stack of open elements while it is there.
    FormattingElement* previous = nullptr;
    FormattingElement* next = nullptr;

    /// The next entry before and behind this one whose element has the same name.
    FormattingElement* samePrevious = nullptr;
    FormattingElement* sameNext = nullptr;

    std::size_t markersBefore = 0;
    std::uint64_t family = 0; ///< The same for elements of the same name and attributes, once the list is long; else 0.
    TagId id = TagId::unknown;

    bool isMarker() const noexcept { return element == nullptr; }
};

} // namespace brindle::html
