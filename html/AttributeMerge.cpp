#include "html/AttributeMerge.hpp"

namespace brindle::html {

void AttributeMerge::add(Element& element, std::span<const Attribute> attributes) {
    if (_element == nullptr) {
        _element = &element;
        for (const Attribute& attribute : element.attributes()) {
            addNew(attribute);
        }
    }
    for (const Attribute& attribute : attributes) {
        addNew(attribute);
    }
}

void AttributeMerge::addNew(const Attribute& attribute) {
    if (_attributes.isNew(attribute.key)) {
        _attributes.add(attribute.key, attribute.value);
    }
}

void AttributeMerge::finish(Arena& arena) {
    if (_element != nullptr) {
        _element->setAttributes(copyOf(_attributes.attributes(), arena));
    }
}

} // namespace brindle::html
