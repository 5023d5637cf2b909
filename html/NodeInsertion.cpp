#include "html/NodeInsertion.hpp"

#include "html/DataNodes.hpp"

namespace brindle::html {

NodeInsertion::Place NodeInsertion::fosterPlace() const noexcept {
    // The newest template or table, or the root where there is neither.
    const OpenElement& nearest = *_open.current().boundary(Boundary::tableScope);
    if (nearest.id != TagId::table) {
        return {nearest.element, nullptr};
    }
    if (Element* const parent = nearest.element->parent()) {
        return {parent, nearest.element};
    }
    // The table stood in a `selectedcontent` that shows something else by now.
    return {nearest.below->element, nullptr};
}

void NodeInsertion::insertText(std::string_view text) {
    if (text.empty()) {
        return;
    }
    const Place place = placeIn(_open.current());
    Node* const previous = place.before != nullptr ? place.before->previousSibling() : place.parent->lastChild();
    if (previous != nullptr && previous->kind() == Node::Kind::text) {
        return static_cast<TextNode*>(previous)->append(text, _arena);
    }
    place.parent->insertBefore(_arena.make<TextNode>(text), place.before);
}

} // namespace brindle::html
