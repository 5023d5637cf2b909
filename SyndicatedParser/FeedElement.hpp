#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace brindle {

/// The elements that the XML formats are read by, under their lower-case names.
enum class FeedElement : std::uint8_t {
    unknown,
    author,
    category,
    channel,
    content,
    description,
    enclosure,
    entry,
    guid,
    id,
    item,
    language,
    lastbuilddate,
    link,
    pubdate,
    published,
    rights,
    source,
    subtitle,
    summary,
    title,
    updated
};

/// The element of that name, compared in lower case and with its prefix: "dc:date" is an unknown name like any other.
FeedElement feedElement(std::string_view name);

/// Some of the elements.
class FeedElementSet {
public:
    constexpr FeedElementSet(std::initializer_list<FeedElement> elements) {
        for (const FeedElement element : elements)
            _bits |= bit(element);
    }

    constexpr bool holds(FeedElement element) const { return (_bits & bit(element)) != 0; }

private:
    static constexpr std::uint32_t bit(FeedElement element) { return std::uint32_t{1} << static_cast<unsigned>(element); }

    std::uint32_t _bits = 0;
};

} // namespace brindle
