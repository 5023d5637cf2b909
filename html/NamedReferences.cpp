#include "html/NamedReferences.hpp"

#include <algorithm>
#include <iterator>

#include "html/NamedReferenceTable.hpp"

namespace brindle::html {

namespace {

std::string_view nameOf(const NamedReferenceEntry& entry) noexcept {
    return {namedReferenceNames + entry.nameOffset, entry.nameLength};
}

std::string_view valueOf(const NamedReferenceEntry& entry) noexcept {
    return {namedReferenceValues + entry.valueOffset, entry.valueLength};
}

/// The byte of a name at `index`; names that end before it sort first.
int byteAt(const NamedReferenceEntry& entry, std::size_t index) noexcept {
    return index < entry.nameLength ? namedReferenceNames[entry.nameOffset + index] : -1;
}

} // namespace

NamedReferenceMatch longestNamedReference(std::string_view text) noexcept {
    const NamedReferenceEntry* first = std::begin(namedReferenceEntries);
    const NamedReferenceEntry* last = std::end(namedReferenceEntries);
    NamedReferenceMatch match;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const int byte = static_cast<unsigned char>(text[index]);
        first = std::partition_point(first, last, [=](const NamedReferenceEntry& entry) { return byteAt(entry, index) < byte; });
        last = std::partition_point(first, last, [=](const NamedReferenceEntry& entry) { return byteAt(entry, index) == byte; });
        if (first == last) {
            break;
        }
        if (first->nameLength == index + 1) {
            match = {valueOf(*first), index + 1};
        }
    }
    return match;
}

std::optional<std::string_view> namedReference(std::string_view nameWithoutAmpersandAndSemicolon) noexcept {
    const std::string_view wanted = nameWithoutAmpersandAndSemicolon;
    // Every name has a form with a semicolon, and that is the one looked for.
    const auto isBefore = [](const NamedReferenceEntry& entry, std::string_view name) {
        const int order = nameOf(entry).substr(0, name.size()).compare(name);
        return order != 0 ? order < 0 : byteAt(entry, name.size()) < ';';
    };
    const NamedReferenceEntry* const end = std::end(namedReferenceEntries);
    const NamedReferenceEntry* const found = std::lower_bound(std::begin(namedReferenceEntries), end, wanted, isBefore);
    const bool isFound =
        found != end && found->nameLength == wanted.size() + 1 && nameOf(*found).starts_with(wanted) && nameOf(*found).ends_with(';');
    return isFound ? std::optional(valueOf(*found)) : std::nullopt;
}

} // namespace brindle::html
