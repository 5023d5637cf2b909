#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brindle::html {

class Document;
class Element;

/// A node of a document tree. The document owns all of its nodes; a pointer to one is good as long as the document is.
/// `const` is that of the pointer and not of the tree. A document and its nodes are used by one thread at a time.
class Node {
public:
    enum class Kind : std::uint8_t { document, element, text, comment, xmlDeclaration, documentType };

    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    Node(Node&&) = delete;
    Node& operator=(Node&&) = delete;

    Kind kind() const noexcept { return _kind; }

    /// Whether it is an element; a document is one.
    bool isElement() const noexcept { return _kind <= Kind::element; }

    /// This node as an element, or null.
    Element* asElement() noexcept;
    const Element* asElement() const noexcept;

    /// The element that holds this node; null for a document and for a node that was taken out of its tree.
    Element* parent() const noexcept { return _parent; }
    Node* previousSibling() const noexcept { return _previous; }
    Node* nextSibling() const noexcept { return _next; }

    /// The children's ends; null without children.
    Node* firstChild() const noexcept;
    Node* lastChild() const noexcept;

    /// The child at `index`, from 0. Takes time by the index. Throws `Error` where there is none.
    Node* childNode(std::size_t index) const;

    /// The document that this node hangs from, or null for a node that was taken out of its tree. Takes time by the depth.
    const Document* ownerDocument() const noexcept;

    /// The value of the attribute with exactly this key. For a key that starts with "abs:" in any case and has no value of its own: the
    /// value of the rest of the key, made absolute against the document's base URI by RFC 3986, section 5.2. Empty where there is no such
    /// attribute, where its value is empty, and where no absolute URL comes of it.
    std::string attr(std::string_view key) const;

    /// The markup of this node with its descendants, by the output settings of its document; the node itself counts as depth 0.
    std::string outerHtml() const;

    /// The node after this one in document order within the tree below `top`, or null.
    Node* nextInTree(const Node* top) const noexcept;

protected:
    explicit Node(Kind kind) noexcept : _kind(kind) {}
    ~Node() = default;

private:
    friend class Element;

    Element* _parent = nullptr;
    Node* _previous = nullptr;
    Node* _next = nullptr;
    const Kind _kind;
};

} // namespace brindle::html
