#include "SyndicatedParser/ReversedTagIndex.hpp"

#include <algorithm>
#include <numeric>

namespace brindle {

namespace {

bool comesBefore(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

} // namespace

ReversedTagIndex::ReversedTagIndex(const std::vector<std::string_view>& tags) : _places(tags.size()) {
    std::iota(_places.begin(), _places.end(), std::size_t{0});
    std::stable_sort(_places.begin(), _places.end(), [&tags](std::size_t a, std::size_t b) { return comesBefore(tags[a], tags[b]); });
    for (std::size_t i = 0; i < _places.size(); ++i) {
        if (_tags.empty() || _tags.back().text != tags[_places[i]])
            _tags.push_back({tags[_places[i]], i});
    }
}

ReversedTagIndex::Range ReversedTagIndex::narrowed(const Range& range, char character) const {
    const std::size_t depth = range.depth;
    const auto at = [depth](const Tag& tag) { return tag.text[tag.text.size() - 1 - depth]; };
    // Tags are distinct, so that only the first can be too short to be compared.
    const auto begin = _tags.begin() + static_cast<std::ptrdiff_t>(range.begin) + (holdsWholeTag(range) ? 1 : 0);
    const auto end = _tags.begin() + static_cast<std::ptrdiff_t>(range.end);
    const auto first = std::lower_bound(begin, end, character, [&at](const Tag& tag, char c) { return at(tag) < c; });
    const auto last = std::upper_bound(first, end, character, [&at](char c, const Tag& tag) { return c < at(tag); });
    return {static_cast<std::size_t>(first - _tags.begin()), static_cast<std::size_t>(last - _tags.begin()), depth + 1};
}

std::size_t ReversedTagIndex::nextPlace(const Range& range, std::size_t place) const {
    const auto begin = _places.begin() + static_cast<std::ptrdiff_t>(_tags[range.begin].firstPlace);
    const bool isLast = range.begin + 1 == _tags.size();
    const auto end = isLast ? _places.end() : _places.begin() + static_cast<std::ptrdiff_t>(_tags[range.begin + 1].firstPlace);
    const auto found = std::lower_bound(begin, end, place);
    return found == end ? never : *found;
}

} // namespace brindle
