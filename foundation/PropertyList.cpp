#include "foundation/PropertyList.hpp"

#include "foundation/BinaryPropertyList.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/XMLPropertyList.hpp"

#include <limits>

namespace brindle {

PropertyList::Index PropertyList::add(Object object) {
    if (objects.size() >= std::numeric_limits<Index>::max())
        fatalError("A property list has too many objects");
    objects.push_back(std::move(object));
    return static_cast<Index>(objects.size() - 1);
}

std::optional<PropertyList::Index> PropertyList::value(Index dictionary, std::string_view key) const {
    const Dictionary* const pairs = get<Dictionary>(dictionary);
    if (pairs == nullptr)
        return std::nullopt;
    for (const auto& [keyIndex, valueIndex] : *pairs) {
        const std::string* const text = get<std::string>(keyIndex);
        if (text != nullptr && *text == key)
            return valueIndex;
    }
    return std::nullopt;
}

tl::expected<PropertyList, PropertyList::Error> PropertyList::read(std::string_view bytes) {
    return isBinaryPropertyList(bytes) ? readBinaryPropertyList(bytes) : readXMLPropertyList(bytes);
}

std::string PropertyList::binary() const {
    return writeBinaryPropertyList(*this);
}

std::optional<std::map<std::string, std::int64_t>> integerDictionary(std::string_view bytes) {
    const tl::expected<PropertyList, PropertyList::Error> list = PropertyList::read(bytes);
    const PropertyList::Dictionary* const pairs = list ? list->get<PropertyList::Dictionary>(list->root) : nullptr;
    if (pairs == nullptr)
        return std::nullopt;
    std::map<std::string, std::int64_t> result;
    for (const auto& [keyIndex, valueIndex] : *pairs) {
        const std::string* const key = list->get<std::string>(keyIndex);
        const std::int64_t* const integer = list->get<std::int64_t>(valueIndex);
        const bool* const flag = list->get<bool>(valueIndex);
        if (key == nullptr || (integer == nullptr && flag == nullptr))
            return std::nullopt;
        result.emplace(*key, integer != nullptr ? *integer : static_cast<std::int64_t>(*flag));
    }
    return result;
}

} // namespace brindle
