#include "foundation/UUID.hpp"

#include "foundation/FatalError.hpp"

#include <unistd.h>

namespace brindle {

namespace {

constexpr std::size_t textSize = 36;

bool isHyphenPosition(std::size_t position) {
    return position == 8 || position == 13 || position == 18 || position == 23;
}

std::optional<std::uint8_t> hexadecimalValue(char digit) {
    if (digit >= '0' && digit <= '9')
        return static_cast<std::uint8_t>(digit - '0');
    if (digit >= 'A' && digit <= 'F')
        return static_cast<std::uint8_t>(digit - 'A' + 10);
    if (digit >= 'a' && digit <= 'f')
        return static_cast<std::uint8_t>(digit - 'a' + 10);
    return std::nullopt;
}

} // namespace

UUID UUID::random() {
    UUID uuid;
    if (getentropy(uuid._bytes.data(), uuid._bytes.size()) != 0)
        fatalError("The system gives no random bytes");
    uuid._bytes[6] = static_cast<std::uint8_t>((uuid._bytes[6] & 0x0F) | 0x40);
    uuid._bytes[8] = static_cast<std::uint8_t>((uuid._bytes[8] & 0x3F) | 0x80);
    return uuid;
}

std::optional<UUID> UUID::make(std::string_view text) {
    if (text.size() != textSize)
        return std::nullopt;
    UUID uuid;
    std::size_t digits = 0;
    for (std::size_t position = 0; position < textSize; ++position) {
        if (isHyphenPosition(position)) {
            if (text[position] != '-')
                return std::nullopt;
            continue;
        }
        const std::optional<std::uint8_t> value = hexadecimalValue(text[position]);
        if (!value)
            return std::nullopt;
        std::uint8_t& byte = uuid._bytes[digits / 2];
        byte = static_cast<std::uint8_t>((byte << 4) | *value);
        ++digits;
    }
    return uuid;
}

std::string UUID::uuidString() const {
    constexpr std::string_view hexadecimal = "0123456789ABCDEF";
    std::string text;
    text.reserve(textSize);
    for (const std::uint8_t byte : _bytes) {
        if (isHyphenPosition(text.size()))
            text.push_back('-');
        text.push_back(hexadecimal[byte >> 4]);
        text.push_back(hexadecimal[byte & 0x0F]);
    }
    return text;
}

} // namespace brindle
