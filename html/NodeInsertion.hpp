#pragma once

#include <cstdint>
#include <string_view>

#include "html/Document.hpp"
#include "html/OpenElements.hpp"

namespace brindle::html {

/// Makes nodes and puts them where tree construction wants them (HTML standard, section 13.2.6.1). Nodes live as long as the document.
class NodeInsertion {
public:
    NodeInsertion(Document& document, OpenElements& open) noexcept : _arena(document.arena()), _open(open) {}

    /// Whether what does not belong into a table goes before it ("foster parenting").
    bool fosters() const noexcept { return _fosters; }
    void setFosters(bool fosters) noexcept { _fosters = fosters; }

    Element& makeElement(const Tag& tag, Attributes attributes, Element::Vocabulary vocabulary = Element::Vocabulary::html) {
        return *_arena.make<Element>(tag, attributes, false, vocabulary);
    }

    /// An element with the same name and attributes.
    Element& makeLike(const Element& element) { return makeElement(element.tag(), element.attributes(), element.vocabulary()); }

    /// Puts a node that is in no tree to the current node.
    void insert(Node& node) noexcept { insertIn(_open.current(), node); }

    /// The same for an element that then becomes the current node. `nameIndex` is as in `OpenElements::push`.
    OpenElement& insertAndOpen(Element& element, std::uint32_t nameIndex) {
        insert(element);
        return _open.push(element, nameIndex);
    }

    /// Puts a node that is in no tree to an open element.
    void insertIn(const OpenElement& target, Node& node) noexcept {
        const Place place = placeIn(target);
        place.parent->insertBefore(&node, place.before);
    }

    /// Puts a text, which must live as long as the document, to the current node. Next to a text node it is added to that one.
    void insertText(std::string_view text);

private:
    /// Before a child of an element, or behind its last child where `before` is null.
    struct Place {
        Element* parent;
        Node* before;
    };

    Place placeIn(const OpenElement& target) const noexcept {
        if (!_fosters || (target.traits & traits::fosters) == 0) {
            return {target.element, nullptr};
        }
        return fosterPlace();
    }

    Place fosterPlace() const noexcept;

    Arena& _arena;
    OpenElements& _open;
    bool _fosters = false;
};

} // namespace brindle::html
