#include "html/OpenElements.hpp"

#include <algorithm>
#include <bit>

#include "html/FormattingElement.hpp"

namespace brindle::html {

namespace {

std::uint32_t slotOfHtml(TagId id, std::uint32_t nameIndex) noexcept {
    return id != TagId::unknown ? static_cast<std::uint32_t>(id) : static_cast<std::uint32_t>(tagIdCount) + 2 * nameIndex;
}

std::uint32_t slotOfForeign(std::uint32_t nameIndex) noexcept {
    return static_cast<std::uint32_t>(tagIdCount) + 2 * nameIndex + 1;
}

/// Has an entry take over the boundaries of the one below it, but for those that it is itself.
void setBoundaries(OpenElement& entry) noexcept {
    if (entry.below == nullptr) {
        entry.boundaries.fill(&entry);
        return;
    }
    entry.boundaries = entry.below->boundaries;
    for (ElementTraits own = entry.traits & traits::allBoundaries; own != 0; own &= own - 1) {
        entry.boundaries[static_cast<std::size_t>(std::countr_zero(own))] = &entry;
    }
}

} // namespace

OpenElement& OpenElements::makeEntry() {
    if (_free == nullptr) {
        return *_entries.make<OpenElement>();
    }
    OpenElement& entry = *_free;
    _free = entry.below;
    return entry;
}

OpenElement& OpenElements::push(Element& element, std::uint32_t nameIndex) {
    OpenElement& entry = makeEntry();
    const bool isHtml = element.vocabulary() == Element::Vocabulary::html;
    entry.element = &element;
    entry.below = _top;
    entry.above = nullptr;
    entry.formatting = nullptr;
    entry.id = isHtml ? element.tag().id() : TagId::unknown;
    entry.traits = isHtml ? traitsOfHtml(entry.id) : traitsOfForeign(element);
    entry.nameSlot = isHtml ? slotOfHtml(entry.id, nameIndex) : slotOfForeign(nameIndex);
    entry.serial = ++_serial;
    entry.foreignRun = isHtml ? 0 : _top->isHtml() ? entry.serial : _top->foreignRun;
    setBoundaries(entry);
    if (entry.nameSlot >= _topmost.size()) {
        _topmost.resize(std::max<std::size_t>(_topmost.size() * 2, entry.nameSlot + std::size_t{1}));
    }
    OpenElement*& topmostOfName = _topmost[entry.nameSlot];
    entry.sameAbove = nullptr;
    entry.sameBelow = topmostOfName;
    if (topmostOfName != nullptr) {
        topmostOfName->sameAbove = &entry;
    }
    topmostOfName = &entry;
    (_top != nullptr ? _top->above : _root) = &entry;
    _top = &entry;
    if ((entry.traits & traits::selectPart) != 0) {
        _selectedContent->opened(entry, *this);
    }
    return entry;
}

void OpenElements::pop() {
    if ((_top->traits & traits::selectPart) != 0) {
        _selectedContent->closed(*_top);
    }
    unlink(*_top);
}

void OpenElements::popThrough(const OpenElement& entry) {
    const OpenElement* const last = entry.below;
    while (_top != last) {
        pop();
    }
}

void OpenElements::unlink(OpenElement& entry) noexcept {
    if (entry.formatting != nullptr) {
        entry.formatting->open = nullptr;
    }
    (entry.above != nullptr ? entry.above->below : _top) = entry.below;
    (entry.below != nullptr ? entry.below->above : _root) = entry.above;
    (entry.sameAbove != nullptr ? entry.sameAbove->sameBelow : _topmost[entry.nameSlot]) = entry.sameBelow;
    if (entry.sameBelow != nullptr) {
        entry.sameBelow->sameAbove = entry.sameAbove;
    }
    entry.below = _free;
    _free = &entry;
}

void OpenElements::remove(OpenElement& entry) noexcept {
    // What lies above, up to the next boundary of the same kind, is bounded by what bounds the entry's lower neighbour.
    for (ElementTraits own = entry.traits & traits::allBoundaries; own != 0; own &= own - 1) {
        const auto kind = static_cast<std::size_t>(std::countr_zero(own));
        for (OpenElement* at = entry.above; at != nullptr && at->boundaries[kind] == &entry; at = at->above) {
            at->boundaries[kind] = entry.below->boundaries[kind];
        }
    }
    unlink(entry);
}

void OpenElements::moveAbove(OpenElement& entry, OpenElement& place, Element& element) noexcept {
    // Its place in the chain of its name stays: it was the newest of its name in the scope, and `place` lies in the same scope.
    entry.above->below = entry.below;
    entry.below->above = entry.above;
    entry.above = place.above;
    entry.below = &place;
    (place.above != nullptr ? place.above->below : _top) = &entry;
    place.above = &entry;
    entry.element = &element;
    setBoundaries(entry);
}

OpenElement* OpenElements::within(TagId id, std::uint32_t nameIndex, Boundary boundary) const noexcept {
    OpenElement* const entry = topmostAt(slotOfHtml(id, nameIndex));
    return entry != nullptr && isWithin(*entry, boundary) ? entry : nullptr;
}

bool OpenElements::hasAnyWithin(std::initializer_list<TagId> ids, Boundary boundary) const noexcept {
    return std::any_of(ids.begin(), ids.end(), [&](TagId id) { return within(id, boundary) != nullptr; });
}

OpenElement* OpenElements::foreignWithin(std::uint32_t nameIndex) const noexcept {
    OpenElement* const entry = topmostAt(slotOfForeign(nameIndex));
    return entry != nullptr && entry->foreignRun == _top->foreignRun ? entry : nullptr;
}

} // namespace brindle::html
