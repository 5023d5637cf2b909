#pragma once

#include <span>

#include "html/Arena.hpp"
#include "html/AttributeCollector.hpp"
#include "html/Element.hpp"

namespace brindle::html {

/// The attributes that later tags of the same name add to the `html` or `body` element (HTML standard, section 13.2.6.4.7).
class AttributeMerge {
public:
    /// Takes in those of `attributes` whose keys `element` does not have yet; it is the same element each time.
    void add(Element& element, std::span<const Attribute> attributes);

    /// Gives the element all that was taken in. To be called once, at the end, since each call costs a copy in `arena`.
    void finish(Arena& arena);

private:
    void addNew(const Attribute& attribute);

    Element* _element = nullptr;
    AttributeCollector _attributes;
};

} // namespace brindle::html
