#include "html/SelectedContent.hpp"

#include <charconv>
#include <initializer_list>
#include <string_view>

#include "html/DataNodes.hpp"
#include "html/OpenElements.hpp"

namespace brindle::html {

namespace {

bool has(const OpenElement& entry, std::string_view attribute) noexcept {
    return entry.element->attributes().find(attribute) != nullptr;
}

/// The one of the entries that was opened last; null stands for none.
const OpenElement* newestOf(std::initializer_list<const OpenElement*> entries) noexcept {
    const OpenElement* newest = nullptr;
    for (const OpenElement* const entry : entries) {
        if (entry != nullptr && (newest == nullptr || entry->serial > newest->serial)) {
            newest = entry;
        }
    }
    return newest;
}

/// Whether the `size` of a `select` is a number above 1.
bool showsSeveral(const OpenElement& select) noexcept {
    const Attribute* const size = select.element->attributes().find("size");
    unsigned number = 0;
    if (size != nullptr) {
        std::from_chars(size->value.data(), size->value.data() + size->value.size(), number);
    }
    return number > 1;
}

/// A copy of a node without what is below it.
Node* copyOf(const Node& node, Arena& arena) {
    if (node.kind() == Node::Kind::element) {
        const auto& element = static_cast<const Element&>(node);
        return arena.make<Element>(element.tag(), element.attributes(), element.isSelfClosing(), element.vocabulary());
    }
    const std::string_view text = static_cast<const DataNode&>(node).text();
    if (node.kind() == Node::Kind::text) {
        return arena.make<TextNode>(text);
    }
    return arena.make<Comment>(text);
}

/// Puts copies of all that is below `from` into `to`.
void copyContent(const Element& from, Element& to, Arena& arena) {
    Element* parent = &to;
    const Node* node = from.firstChild();
    while (node != nullptr) {
        Node* const copy = copyOf(*node, arena);
        parent->appendChild(copy);
        if (node->firstChild() != nullptr) {
            node = node->firstChild();
            parent = copy->asElement();
            continue;
        }
        while (node->nextSibling() == nullptr && node->parent() != &from) {
            node = node->parent();
            parent = parent->parent();
        }
        node = node->nextSibling();
    }
}

} // namespace

void SelectedContent::opened(const OpenElement& entry, const OpenElements& open) {
    switch (entry.id) {
    case TagId::select:
        _selects.push_back({.isMultiple = has(entry, "multiple"), .isListBox = showsSeveral(entry)});
        break;
    case TagId::option:
        openedOption(entry, open);
        break;
    default:
        openedSelectedContent(entry, open);
    }
}

void SelectedContent::openedOption(const OpenElement& entry, const OpenElements& open) {
    const OpenElement* const select = open.topmost(TagId::select);
    const OpenElement* const dataList = open.topmost(TagId::datalist);
    const OpenElement* const group = open.topmost(TagId::optgroup);
    bool isDisabled = has(entry, "disabled");
    const OpenElement* owner = newestOf({select, dataList, entry.sameBelow, group});
    if (owner != nullptr && owner == group) {
        isDisabled = isDisabled || has(*group, "disabled");
        owner = newestOf({select, dataList, entry.sameBelow, group->sameBelow});
    }
    if (owner != nullptr && owner == select) {
        choose(entry, isDisabled);
    }
}

void SelectedContent::choose(const OpenElement& option, bool isDisabled) {
    Select& select = _selects.back();
    if (select.isMultiple) {
        return;
    }
    const bool isFirst = select.selected == nullptr && !select.isListBox && !isDisabled;
    if (isFirst || has(option, "selected")) {
        select.selected = option.element;
        select.isSelectedClosed = false;
    }
}

void SelectedContent::openedSelectedContent(const OpenElement& entry, const OpenElements& open) {
    const OpenElement* const owner = open.topmost(TagId::select);
    const bool isEnabled = owner != nullptr && owner->sameBelow == nullptr && !open.has(TagId::option) && entry.sameBelow == nullptr;
    if (!isEnabled || _selects.back().isMultiple || _selects.back().selectedContent != nullptr) {
        return;
    }
    Select& select = _selects.back();
    select.selectedContent = entry.element;
    if (select.isSelectedClosed) {
        show(select);
    }
}

void SelectedContent::closed(const OpenElement& entry) {
    if (entry.id == TagId::select) {
        _selects.pop_back();
    } else if (entry.id == TagId::option && !_selects.empty() && _selects.back().selected == entry.element) {
        _selects.back().isSelectedClosed = true;
        show(_selects.back());
    }
}

void SelectedContent::show(const Select& select) {
    if (select.selectedContent == nullptr) {
        return;
    }
    while (Node* const child = select.selectedContent->firstChild()) {
        select.selectedContent->removeChild(child);
    }
    copyContent(*select.selected, *select.selectedContent, *_arena);
}

} // namespace brindle::html
