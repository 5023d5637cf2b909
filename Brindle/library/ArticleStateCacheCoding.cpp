#include "Brindle/library/ArticleStateCacheCoding.hpp"

#include "foundation/PropertyList.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace brindle {

namespace {

std::optional<std::int64_t> wholeNumber(const PropertyList::Object& object) {
    if (const auto* integer = std::get_if<std::int64_t>(&object))
        return *integer;
    if (const auto* boolean = std::get_if<bool>(&object))
        return *boolean ? 1 : 0;
    const auto* real = std::get_if<double>(&object);
    // The comparison also refuses what is no number; 2^63 is the first real that does not fit.
    if (!real || !(*real >= -0x1p63 && *real < 0x1p63) || static_cast<double>(static_cast<std::int64_t>(*real)) != *real)
        return std::nullopt;
    return static_cast<std::int64_t>(*real);
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
        const auto number = wholeNumber(list->at(value));
        if (!text || !number)
            return std::nullopt;
        states.emplace(*text, *number);
    }
    return states;
}

} // namespace brindle
