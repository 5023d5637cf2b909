#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "html/Arena.hpp"
#include "html/FormattingElement.hpp"
#include "html/OpenElement.hpp"

namespace brindle::html {

/// The list of active formatting elements (HTML standard, section 13.2.4.3). Each operation takes a time that does not grow with the list,
/// on average.
class ActiveFormattingElements {
public:
    ActiveFormattingElements() = default;
    ActiveFormattingElements(const ActiveFormattingElements&) = delete;
    ActiveFormattingElements& operator=(const ActiveFormattingElements&) = delete;

    /// Adds an element that is open. If there are three of its name and attributes since the last marker, the earliest of them goes
    /// ("Noah's Ark clause").
    void push(OpenElement& open);

    void pushMarker();

    /// Takes out the entries behind the last marker, and the marker.
    void clearToLastMarker() noexcept;

    /// The newest entry, or null.
    FormattingElement* last() const noexcept { return _last; }

    /// The newest entry of this tag since the last marker, or null.
    FormattingElement* lastOf(TagId id) const noexcept {
        FormattingElement* const entry = _lastOf[static_cast<std::size_t>(id)];
        return entry != nullptr && entry->markersBefore == _markers ? entry : nullptr;
    }

    void remove(FormattingElement& entry) noexcept;

    /// Has an entry stand for another element of the same name and attributes.
    static void replace(FormattingElement& entry, OpenElement& open) noexcept;

    /// Moves an entry to directly behind `place`. Both lie behind the last marker, and no entry between them has the same name.
    void moveBehind(FormattingElement& entry, FormattingElement& place) noexcept;

private:
    /// Up to how many entries the list is simply looked through.
    static constexpr std::size_t fewEntries = 32;

    FormattingElement& append(Element* element, TagId id);
    void unlink(FormattingElement& entry) noexcept;
    void chain(FormattingElement& entry) noexcept;
    void unchain(FormattingElement& entry) noexcept;
    FormattingElement* earliestOfThreeAlike(const Element& element, TagId id) const;
    FormattingElement* earliestOfFullFamily(const Element& element, std::uint64_t family) const;
    void startFamilies();
    void leaveFamily(FormattingElement& entry) noexcept;

    Arena _entries;
    FormattingElement* _free = nullptr; ///< Entries out of use, chained by `next`.
    FormattingElement* _last = nullptr;
    std::array<FormattingElement*, tagIdCount> _lastOf{};
    std::size_t _size = 0;
    std::size_t _markers = 0;

    /// The entries of each family in their order, once the list has been long.
    std::unordered_map<std::uint64_t, std::vector<FormattingElement*>> _families;
    bool _hasFamilies = false;
};

} // namespace brindle::html
