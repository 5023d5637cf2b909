#pragma once

#include <string_view>

#include "html/Attributes.hpp"
#include "html/Elements.hpp"
#include "html/Node.hpp"
#include "html/Tag.hpp"

namespace brindle::html {

/// A node with a tag, attributes and children.
class Element : public Node {
public:
    /// Which vocabulary the element belongs to. The XML builder knows none and leaves `html`.
    enum class Vocabulary : std::uint8_t { html, svg, mathMl };

    Element(const Tag& tag, Attributes attributes, bool isSelfClosing, Vocabulary vocabulary = Vocabulary::html) noexcept
        : Element(Kind::element, tag, attributes, isSelfClosing, vocabulary) {}

    const Tag& tag() const noexcept { return *_tag; }

    /// The tag's name as kept.
    std::string_view tagName() const noexcept { return _tag->name(); }

    const Attributes& attributes() const noexcept { return _attributes; }
    void setAttributes(Attributes attributes) noexcept { _attributes = attributes; }

    /// Whether the source wrote it as `<a/>`.
    bool isSelfClosing() const noexcept { return _isSelfClosing; }

    Vocabulary vocabulary() const noexcept { return _vocabulary; }

    /// The child nodes that are elements, in order.
    Elements children() const;

    /// This element and those below it whose tag has this name, in document order. White space around the name and its case do not count.
    /// Throws `Error` for an empty name.
    Elements getElementsByTag(std::string_view name);

    /// Puts a node that is in no tree behind the last child.
    void appendChild(Node* child) noexcept { insertBefore(child, nullptr); }

    /// Puts a node that is in no tree before `next`, a child of this element, or behind the last child where `next` is null.
    void insertBefore(Node* child, Node* next) noexcept;

    /// Puts all children of `other` behind the last child. Takes time by their number.
    void takeChildrenOf(Element& other) noexcept;

    /// Takes a child out of the tree. The node stays with the document's memory.
    void removeChild(Node* child) noexcept;

protected:
    Element(Kind kind, const Tag& tag, Attributes attributes, bool isSelfClosing, Vocabulary vocabulary) noexcept
        : Node(kind), _isSelfClosing(isSelfClosing), _vocabulary(vocabulary), _tag(&tag), _attributes(attributes) {}

private:
    friend class Node;

    const bool _isSelfClosing;
    const Vocabulary _vocabulary;
    const Tag* const _tag;
    Attributes _attributes;
    Node* _firstChild = nullptr;
    Node* _lastChild = nullptr;
};

} // namespace brindle::html
