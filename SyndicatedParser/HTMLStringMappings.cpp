#include "SyndicatedParser/HTMLStringMappings.hpp"

#include "SyndicatedParser/HTMLStringMappingsData.hpp"
#include "foundation/PropertyList.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace brindle {

namespace {

/// The bytes of a base64 text (RFC 4648 4); what is no digit ends it.
std::string decodeBase64(std::string_view text) {
    static constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::uint8_t noDigit = 64;
    std::array<std::uint8_t, 256> values{};
    values.fill(noDigit);
    for (std::size_t i = 0; i < digits.size(); ++i)
        values[static_cast<unsigned char>(digits[i])] = static_cast<std::uint8_t>(i);

    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char character : text) {
        const std::uint32_t value = values[static_cast<unsigned char>(character)];
        if (value == noDigit)
            break;
        bits = (bits << 6) | value;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>((bits >> count) & 0xFFU);
        }
    }
    return bytes;
}

/// The table, over the property list that holds its texts. A list that can't be read leaves it empty.
struct Table {
    PropertyList list;
    std::unordered_map<std::string_view, std::string_view> replacements;

    Table() {
        auto read = PropertyList::read(decodeBase64(htmlStringMappingsData));
        if (!read)
            return;
        list = std::move(*read);
        const auto* const dictionary = list.get<PropertyList::Dictionary>(list.root);
        if (!dictionary)
            return;
        replacements.reserve(dictionary->size());
        for (const auto& [key, value] : *dictionary) {
            const auto* const name = list.get<std::string>(key);
            const auto* const replacement = list.get<std::string>(value);
            if (name && replacement)
                replacements.emplace(*name, *replacement);
        }
    }
};

} // namespace

std::optional<std::string_view> HTMLStringMappings::text(std::string_view name) {
    static const Table table;
    const auto found = table.replacements.find(name);
    if (found == table.replacements.end())
        return std::nullopt;
    return found->second;
}

} // namespace brindle
