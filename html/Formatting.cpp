#include "html/Formatting.hpp"

namespace brindle::html {

namespace {

void takeOut(Node& node) noexcept {
    if (Element* const parent = node.parent()) {
        parent->removeChild(&node);
    }
}

} // namespace

void Formatting::reopen() {
    std::size_t count = 0;
    FormattingElement* first = _active.last();
    for (;; first = first->previous) {
        ++count;
        if (first->previous == nullptr || first->previous->isMarker() || first->previous->open != nullptr) {
            break;
        }
    }
    if (count > _reopenable) {
        return dropClosed();
    }
    _reopenable -= count;
    for (FormattingElement* entry = first; entry != nullptr; entry = entry->next) {
        OpenElement& open = _insertion.insertAndOpen(_insertion.makeLike(*entry->element), 0);
        ActiveFormattingElements::replace(*entry, open);
    }
}

void Formatting::dropClosed() noexcept {
    while (_active.last() != nullptr && !_active.last()->isMarker() && _active.last()->open == nullptr) {
        _active.remove(*_active.last());
    }
}

bool Formatting::close(TagId id) {
    constexpr int mostRounds = 8;
    OpenElement& current = _open.current();
    if (current.id == id && current.formatting == nullptr) {
        _open.pop();
        return true;
    }
    for (int round = 0; round < mostRounds; ++round) {
        FormattingElement* const formatting = _active.lastOf(id);
        if (formatting == nullptr) {
            // Only the first time: what a round leaves of the element is in the list.
            return false;
        }
        if (!closeOnce(*formatting)) {
            return true;
        }
    }
    return true;
}

/// One round of the algorithm. False if it was the last.
bool Formatting::closeOnce(FormattingElement& formatting) {
    OpenElement* const open = formatting.open;
    if (open == nullptr) {
        _active.remove(formatting);
        return false;
    }
    if (!_open.isWithin(*open, Boundary::scope)) {
        return false;
    }
    OpenElement* furthest = open->above;
    while (furthest != nullptr && (furthest->traits & traits::special) == 0) {
        furthest = furthest->above;
    }
    if (furthest == nullptr) {
        _open.popThrough(*open);
        _active.remove(formatting);
        return false;
    }
    const OpenElement& commonAncestor = *open->below;
    FormattingElement* bookmark = &formatting;
    Element* const last = rebuildBetween(*open, *furthest, bookmark);
    takeOut(*last);
    _insertion.insertIn(commonAncestor, *last);

    Element& clone = _insertion.makeLike(*formatting.element);
    clone.takeChildrenOf(*furthest->element);
    furthest->element->appendChild(&clone);
    _open.moveAbove(*open, *furthest, clone);
    if (bookmark != &formatting) {
        _active.moveBehind(formatting, *bookmark);
    }
    ActiveFormattingElements::replace(formatting, *open);
    return true;
}

/// Replaces the formatting elements between the one that is closed and the furthest block by copies, each the only child of the one before
/// it, and takes all else there off the stack. Gives the outermost copy, or the furthest block.
Element* Formatting::rebuildBetween(const OpenElement& formatting, OpenElement& furthest, FormattingElement*& bookmark) {
    constexpr int mostCopies = 3;
    Element* last = furthest.element;
    OpenElement* below = nullptr;
    int count = 0;
    for (OpenElement* node = furthest.below; node != &formatting; node = below) {
        below = node->below;
        ++count;
        if (count > mostCopies && node->formatting != nullptr) {
            _active.remove(*node->formatting);
        }
        if (node->formatting == nullptr) {
            _open.remove(*node);
            continue;
        }
        node->element = &_insertion.makeLike(*node->element);
        node->formatting->element = node->element;
        if (last == furthest.element) {
            bookmark = node->formatting;
        }
        takeOut(*last);
        node->element->appendChild(last);
        last = node->element;
    }
    return last;
}

} // namespace brindle::html
