#include "html/TagTable.hpp"

#include <algorithm>
#include <cstring>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

constexpr std::size_t firstSlotCount = 128;

/// Tag names are short: their first and last eight bytes and their length tell nearly all of them apart.
std::uint64_t shortHash(std::string_view name) noexcept {
    std::uint64_t head = 0;
    std::uint64_t tail = 0;
    if (name.size() >= sizeof head) {
        std::memcpy(&head, name.data(), sizeof head);
        std::memcpy(&tail, name.data() + name.size() - sizeof tail, sizeof tail);
    } else {
        for (const char byte : name) {
            head = (head << 8) | static_cast<unsigned char>(byte);
        }
    }
    std::uint64_t mixed = (head ^ (tail * 0x9E3779B97F4A7C15U) ^ name.size()) * 0xD6E8FEB86659FD93U;
    mixed ^= mixed >> 32;
    return mixed * 0xD6E8FEB86659FD93U;
}

/// Long names differ anywhere, and may be made to look alike at both ends: all of their bytes count.
std::uint64_t hashOf(std::string_view name) noexcept {
    if (name.size() <= 2 * sizeof(std::uint64_t)) {
        return shortHash(name) >> 20;
    }
    return std::hash<std::string_view>{}(name);
}

} // namespace

TagTable::TagTable(Arena& arena) : _arena(&arena), _slots(firstSlotCount, noIndex) {}

std::size_t TagTable::slotOf(std::string_view name) const noexcept {
    const std::size_t mask = _slots.size() - 1;
    std::size_t slot = hashOf(name) & mask;
    while (_slots[slot] != noIndex && _tags[_slots[slot]]->name() != name) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

std::uint32_t TagTable::find(std::string_view name) const noexcept {
    return _slots[slotOf(name)];
}

std::uint32_t TagTable::intern(std::string_view name) {
    const std::size_t slot = slotOf(name);
    if (_slots[slot] != noIndex) {
        return _slots[slot];
    }
    const auto index = static_cast<std::uint32_t>(_tags.size());
    _tags.push_back(tagFor(name));
    _slots[slot] = index;
    if (_tags.size() * 2 > _slots.size()) {
        grow();
    }
    return index;
}

const Tag* TagTable::tagFor(std::string_view name) {
    if (const Tag* const known = Tag::known(name)) {
        return known;
    }
    const bool isNormal = std::none_of(name.begin(), name.end(), isAsciiUpper);
    if (isNormal) {
        return _arena->make<Tag>(name, name, Tag::unknownFlags);
    }
    const std::string_view normalName = _arena->copy(asciiLowercased(name));
    const Tag* const known = Tag::known(normalName);
    return _arena->make<Tag>(name, normalName, Tag::unknownFlags, known != nullptr ? known->id() : TagId::unknown);
}

void TagTable::grow() {
    _slots.assign(_slots.size() * 2, noIndex);
    for (std::size_t index = 0; index < _tags.size(); ++index) {
        _slots[slotOf(_tags[index]->name())] = static_cast<std::uint32_t>(index);
    }
}

} // namespace brindle::html
