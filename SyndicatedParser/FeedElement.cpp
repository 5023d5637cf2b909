#include "SyndicatedParser/FeedElement.hpp"

#include "foundation/Text.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace brindle {

namespace {

struct NamedElement {
    std::string_view name;
    FeedElement element;
};

/// In the order of their names' sizes.
constexpr std::array namedElements = {
    NamedElement{"id", FeedElement::id},
    NamedElement{"guid", FeedElement::guid},
    NamedElement{"item", FeedElement::item},
    NamedElement{"link", FeedElement::link},
    NamedElement{"entry", FeedElement::entry},
    NamedElement{"title", FeedElement::title},
    NamedElement{"author", FeedElement::author},
    NamedElement{"rights", FeedElement::rights},
    NamedElement{"source", FeedElement::source},
    NamedElement{"channel", FeedElement::channel},
    NamedElement{"content", FeedElement::content},
    NamedElement{"pubdate", FeedElement::pubdate},
    NamedElement{"summary", FeedElement::summary},
    NamedElement{"updated", FeedElement::updated},
    NamedElement{"category", FeedElement::category},
    NamedElement{"language", FeedElement::language},
    NamedElement{"subtitle", FeedElement::subtitle},
    NamedElement{"enclosure", FeedElement::enclosure},
    NamedElement{"published", FeedElement::published},
    NamedElement{"description", FeedElement::description},
    NamedElement{"lastbuilddate", FeedElement::lastbuilddate},
};

constexpr std::size_t longestName = namedElements.back().name.size();

/// For each size, where the names of that size begin; one more for the end.
constexpr auto firstOfSize = [] {
    std::array<std::size_t, longestName + 2> first{};
    for (std::size_t size = 0; size < first.size(); ++size) {
        while (first[size] < namedElements.size() && namedElements[first[size]].name.size() < size)
            ++first[size];
    }
    return first;
}();

FeedElement elementOfLowercased(std::string_view name) {
    if (name.size() > longestName)
        return FeedElement::unknown;
    for (std::size_t i = firstOfSize[name.size()]; i < firstOfSize[name.size() + 1]; ++i) {
        if (namedElements[i].name == name)
            return namedElements[i].element;
    }
    return FeedElement::unknown;
}

} // namespace

FeedElement feedElement(std::string_view name) {
    const bool isASCII = std::ranges::all_of(name, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    // The Kelvin sign lowers to "k": only ASCII names can go without the tables of Unicode.
    if (!isASCII)
        return elementOfLowercased(text::lowercased(name));
    std::array<char, longestName> lowercased{};
    if (name.size() > lowercased.size())
        return FeedElement::unknown;
    std::ranges::transform(name, lowercased.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return elementOfLowercased({lowercased.data(), name.size()});
}

} // namespace brindle
