#include "html/Node.hpp"

#include "html/AbsoluteURL.hpp"
#include "html/AsciiText.hpp"
#include "html/Document.hpp"
#include "html/Element.hpp"
#include "html/Error.hpp"
#include "html/Serialiser.hpp"

namespace brindle::html {

Element* Node::asElement() noexcept {
    return isElement() ? static_cast<Element*>(this) : nullptr;
}

const Element* Node::asElement() const noexcept {
    return isElement() ? static_cast<const Element*>(this) : nullptr;
}

Node* Node::firstChild() const noexcept {
    return isElement() ? static_cast<const Element*>(this)->_firstChild : nullptr;
}

Node* Node::lastChild() const noexcept {
    return isElement() ? static_cast<const Element*>(this)->_lastChild : nullptr;
}

Node* Node::childNode(std::size_t index) const {
    Node* child = firstChild();
    for (; child != nullptr && index > 0; --index) {
        child = child->_next;
    }
    if (child == nullptr) {
        throw Error("There is no child node at that index");
    }
    return child;
}

const Document* Node::ownerDocument() const noexcept {
    const Node* top = this;
    while (top->_parent != nullptr) {
        top = top->_parent;
    }
    return top->_kind == Kind::document ? static_cast<const Document*>(top) : nullptr;
}

std::string Node::attr(std::string_view key) const {
    constexpr std::string_view absolutePrefix = "abs:";
    const Element* const element = asElement();
    if (element == nullptr) {
        return {};
    }
    const Attribute* const exact = element->attributes().find(key);
    if (exact != nullptr && !exact->value.empty()) {
        return std::string(exact->value);
    }
    if (!equalsIgnoringAsciiCase(key.substr(0, absolutePrefix.size()), absolutePrefix)) {
        return {};
    }
    const Attribute* const relative = element->attributes().find(key.substr(absolutePrefix.size()));
    const Document* const document = ownerDocument();
    if (relative == nullptr || document == nullptr) {
        return {};
    }
    return absoluteURL(document->location(), relative->value).value_or(std::string());
}

std::string Node::outerHtml() const {
    const Document* const document = ownerDocument();
    return Serialiser(document != nullptr ? document->outputSettings() : OutputSettings()).serialise(*this);
}

Node* Node::nextInTree(const Node* top) const noexcept {
    if (Node* const child = firstChild()) {
        return child;
    }
    for (const Node* node = this; node != top && node != nullptr; node = node->_parent) {
        if (node->_next != nullptr) {
            return node->_next;
        }
    }
    return nullptr;
}

} // namespace brindle::html
