#include "html/ActiveFormattingElements.hpp"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>

namespace brindle::html {

namespace {

constexpr std::size_t mostOfAFamily = 3;

/// Whether two elements of the same name have the same attributes, in whatever order.
bool haveSameAttributes(const Attributes& a, const Attributes& b) {
    constexpr std::size_t few = 16;
    if (a.size() != b.size()) {
        return false;
    }
    if (a.size() <= few) {
        return std::all_of(a.begin(), a.end(), [&](const Attribute& attribute) {
            const Attribute* const other = b.find(attribute.key);
            return other != nullptr && other->value == attribute.value;
        });
    }
    const auto sorted = [](const Attributes& attributes) {
        std::vector<Attribute> copy(attributes.begin(), attributes.end());
        std::sort(copy.begin(), copy.end(), [](const Attribute& left, const Attribute& right) { return left.key < right.key; });
        return copy;
    };
    const std::vector<Attribute> sortedA = sorted(a);
    const std::vector<Attribute> sortedB = sorted(b);
    return std::equal(sortedA.begin(), sortedA.end(), sortedB.begin(),
        [](const Attribute& left, const Attribute& right) { return left.key == right.key && left.value == right.value; });
}

std::uint64_t mixed(std::uint64_t number) noexcept {
    number *= 0x9E3779B97F4A7C15U;
    return number ^ (number >> 29);
}

/// A number that elements of the same name and attributes share, and others next to never.
std::uint64_t familyOf(const Element& element) noexcept {
    const std::hash<std::string_view> hash;
    std::uint64_t sum = hash(element.tagName());
    for (const Attribute& attribute : element.attributes()) {
        sum += mixed(mixed(hash(attribute.key)) + hash(attribute.value));
    }
    return mixed(sum) | 1;
}

} // namespace

void ActiveFormattingElements::push(OpenElement& open) {
    if (_size >= fewEntries && !_hasFamilies) {
        startFamilies();
    }
    const std::uint64_t family = _hasFamilies ? familyOf(*open.element) : 0;
    FormattingElement* const earliest =
        _hasFamilies ? earliestOfFullFamily(*open.element, family) : earliestOfThreeAlike(*open.element, open.id);
    if (earliest != nullptr) {
        remove(*earliest);
    }
    FormattingElement& entry = append(open.element, open.id);
    entry.open = &open;
    open.formatting = &entry;
    entry.family = family;
    chain(entry);
    if (_hasFamilies) {
        _families[family].push_back(&entry);
    }
}

void ActiveFormattingElements::pushMarker() {
    append(nullptr, TagId::unknown);
    ++_markers;
}

void ActiveFormattingElements::clearToLastMarker() noexcept {
    bool isDone = false;
    while (_last != nullptr && !isDone) {
        isDone = _last->isMarker();
        remove(*_last);
    }
}

void ActiveFormattingElements::remove(FormattingElement& entry) noexcept {
    if (entry.open != nullptr) {
        entry.open->formatting = nullptr;
    }
    if (entry.isMarker()) {
        --_markers;
    } else {
        unchain(entry);
        leaveFamily(entry);
    }
    unlink(entry);
    --_size;
    entry.next = _free;
    _free = &entry;
}

void ActiveFormattingElements::replace(FormattingElement& entry, OpenElement& open) noexcept {
    entry.element = open.element;
    entry.open = &open;
    open.formatting = &entry;
}

void ActiveFormattingElements::moveBehind(FormattingElement& entry, FormattingElement& place) noexcept {
    if (place.next == &entry) {
        return;
    }
    unlink(entry);
    entry.previous = &place;
    entry.next = place.next;
    (place.next != nullptr ? place.next->previous : _last) = &entry;
    place.next = &entry;
}

FormattingElement& ActiveFormattingElements::append(Element* element, TagId id) {
    FormattingElement* entry = _free;
    if (entry != nullptr) {
        _free = entry->next;
        *entry = FormattingElement();
    } else {
        entry = _entries.make<FormattingElement>();
    }
    entry->element = element;
    entry->id = id;
    entry->markersBefore = _markers;
    entry->previous = _last;
    if (_last != nullptr) {
        _last->next = entry;
    }
    _last = entry;
    ++_size;
    return *entry;
}

void ActiveFormattingElements::unlink(FormattingElement& entry) noexcept {
    if (entry.previous != nullptr) {
        entry.previous->next = entry.next;
    }
    (entry.next != nullptr ? entry.next->previous : _last) = entry.previous;
}

void ActiveFormattingElements::chain(FormattingElement& entry) noexcept {
    FormattingElement*& lastOfName = _lastOf[static_cast<std::size_t>(entry.id)];
    entry.samePrevious = lastOfName;
    if (lastOfName != nullptr) {
        lastOfName->sameNext = &entry;
    }
    lastOfName = &entry;
}

void ActiveFormattingElements::unchain(FormattingElement& entry) noexcept {
    if (entry.samePrevious != nullptr) {
        entry.samePrevious->sameNext = entry.sameNext;
    }
    (entry.sameNext != nullptr ? entry.sameNext->samePrevious : _lastOf[static_cast<std::size_t>(entry.id)]) = entry.samePrevious;
}

FormattingElement* ActiveFormattingElements::earliestOfThreeAlike(const Element& element, TagId id) const {
    std::size_t count = 0;
    for (FormattingElement* entry = lastOf(id); entry != nullptr && entry->markersBefore == _markers; entry = entry->samePrevious) {
        if (haveSameAttributes(entry->element->attributes(), element.attributes()) && ++count == mostOfAFamily) {
            return entry;
        }
    }
    return nullptr;
}

FormattingElement* ActiveFormattingElements::earliestOfFullFamily(const Element& element, std::uint64_t family) const {
    const auto found = _families.find(family);
    if (found == _families.end()) {
        return nullptr;
    }
    std::size_t count = 0;
    const std::vector<FormattingElement*>& entries = found->second;
    for (auto entry = entries.rbegin(); entry != entries.rend() && (*entry)->markersBefore == _markers; ++entry) {
        const Element& other = *(*entry)->element;
        const bool isAlike = other.tagName() == element.tagName() && haveSameAttributes(other.attributes(), element.attributes());
        if (isAlike && ++count == mostOfAFamily) {
            return *entry;
        }
    }
    return nullptr;
}

void ActiveFormattingElements::startFamilies() {
    std::vector<FormattingElement*> entries;
    for (FormattingElement* entry = _last; entry != nullptr; entry = entry->previous) {
        if (!entry->isMarker()) {
            entries.push_back(entry);
        }
    }
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        (*entry)->family = familyOf(*(*entry)->element);
        _families[(*entry)->family].push_back(*entry);
    }
    _hasFamilies = true;
}

void ActiveFormattingElements::leaveFamily(FormattingElement& entry) noexcept {
    const auto family = _families.find(entry.family);
    if (family == _families.end()) {
        return;
    }
    std::vector<FormattingElement*>& entries = family->second;
    // What goes lies behind the last marker, and so among the last three.
    const auto found = std::find(entries.rbegin(), entries.rend(), &entry);
    if (found != entries.rend()) {
        entries.erase(std::next(found).base());
    }
    if (entries.empty()) {
        _families.erase(family);
    }
}

} // namespace brindle::html
