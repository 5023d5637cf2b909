#include "Brindle/library/ArticleStateCacheCoding.hpp"

#include "foundation/PropertyList.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace brindle {

namespace {

/// Absent for a number that is not whole.
std::optional<std::int64_t> wholeNumber(const PropertyList& list, PropertyList::Index index) {
    const auto number = list.integer(index);
    const auto* const real = list.get<double>(index);
    return real && number && static_cast<double>(*number) != *real ? std::nullopt : number;
}

} // namespace

std::string encodeArticleStates(const ArticleStateCache& states) {
    std::vector<const ArticleStateCache::value_type*> sorted;
    sorted.reserve(states.size());
    for (const auto& state : states)
        sorted.push_back(&state);
    std::sort(sorted.begin(), sorted.end(), [](const auto* a, const auto* b) { return a->first < b->first; });
    PropertyList list;
    list.objects.reserve(2 * sorted.size() + 1);
    PropertyList::Dictionary dictionary;
    dictionary.reserve(sorted.size());
    for (const auto* state : sorted) {
        const auto key = list.add(state->first);
        dictionary.emplace_back(key, list.add(state->second));
    }
    list.root = list.add(std::move(dictionary));
    return list.binary();
}

std::optional<ArticleStateCache> decodeArticleStates(std::string_view bytes) {
    const auto list = PropertyList::read(bytes);
    const auto* dictionary = list ? list->get<PropertyList::Dictionary>(list->root) : nullptr;
    if (!dictionary)
        return std::nullopt;
    ArticleStateCache states;
    states.reserve(dictionary->size());
    for (const auto& [key, value] : *dictionary) {
        const auto* text = list->get<std::string>(key);
        const auto number = wholeNumber(*list, value);
        if (!text || !number)
            return std::nullopt;
        states.emplace(*text, *number);
    }
    return states;
}

} // namespace brindle
