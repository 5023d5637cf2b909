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

std::optional<std::int64_t> PropertyList::integer(Index index) const {
    if (const auto* const integer = get<std::int64_t>(index))
        return *integer;
    if (const auto* const flag = get<bool>(index))
        return *flag ? 1 : 0;
    const auto* const real = get<double>(index);
    // The comparison also refuses what is no number; 2^63 is the first real that does not fit.
    const bool fits = real != nullptr && *real >= -0x1p63 && *real < 0x1p63;
    return fits ? std::optional(static_cast<std::int64_t>(*real)) : std::nullopt;
}

tl::expected<PropertyList, PropertyList::Error> PropertyList::read(std::string_view bytes) {
    return isBinaryPropertyList(bytes) ? readBinaryPropertyList(bytes) : readXMLPropertyList(bytes);
}

std::string PropertyList::binary() const {
    return writeBinaryPropertyList(*this);
}

} // namespace brindle
