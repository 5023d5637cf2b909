#include "html/Element.hpp"

#include "html/Evaluator.hpp"

namespace brindle::html {

Elements Element::children() const {
    Elements found;
    for (Node* child = firstChild(); child != nullptr; child = child->nextSibling()) {
        if (Element* const element = child->asElement()) {
            found.elements.push_back(element);
        }
    }
    return found;
}

Elements Element::getElementsByTag(std::string_view name) {
    const TagEvaluator evaluator(name);
    Elements found;
    for (Node* node = this; node != nullptr; node = node->nextInTree(this)) {
        Element* const element = node->asElement();
        if (element != nullptr && evaluator.matches(*element)) {
            found.elements.push_back(element);
        }
    }
    return found;
}

void Element::insertBefore(Node* child, Node* next) noexcept {
    Node* const previous = next != nullptr ? next->_previous : _lastChild;
    child->_parent = this;
    child->_previous = previous;
    child->_next = next;
    (previous != nullptr ? previous->_next : _firstChild) = child;
    (next != nullptr ? next->_previous : _lastChild) = child;
}

void Element::takeChildrenOf(Element& other) noexcept {
    Node* const first = other._firstChild;
    if (first == nullptr) {
        return;
    }
    for (Node* child = first; child != nullptr; child = child->_next) {
        child->_parent = this;
    }
    first->_previous = _lastChild;
    (_lastChild != nullptr ? _lastChild->_next : _firstChild) = first;
    _lastChild = other._lastChild;
    other._firstChild = nullptr;
    other._lastChild = nullptr;
}

void Element::removeChild(Node* child) noexcept {
    (child->_previous != nullptr ? child->_previous->_next : _firstChild) = child->_next;
    (child->_next != nullptr ? child->_next->_previous : _lastChild) = child->_previous;
    child->_parent = nullptr;
    child->_previous = nullptr;
    child->_next = nullptr;
}

} // namespace brindle::html
