#include "foundation/StringEncoding.hpp"

#include "foundation/FatalError.hpp"

#include <cstdint>
#include <cstring>
#include <unicode/utf8.h>

namespace brindle {

namespace {

constexpr std::uint64_t highBits = 0x8080808080808080;

const std::uint8_t* bytesOf(std::string_view text) {
    return reinterpret_cast<const std::uint8_t*>(text.data());
}

std::uint64_t word(const std::uint8_t* bytes) {
    std::uint64_t value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

/// The first position at or after `at` whose byte is not ASCII; `end` when there is none.
const std::uint8_t* skipASCII(const std::uint8_t* at, const std::uint8_t* end) {
    while (end - at >= 32) {
        if ((word(at) | word(at + 8) | word(at + 16) | word(at + 24)) & highBits)
            break;
        at += 32;
    }
    while (end - at >= 8 && (word(at) & highBits) == 0)
        at += 8;
    while (at != end && *at < 0x80)
        ++at;
    return at;
}

bool isContinuation(std::uint8_t byte) {
    return (byte & 0xC0) == 0x80;
}

/// The size of the well-formed sequence that starts with the byte above 0x7F at `at`; 0 when there is none.
std::size_t multibyteSize(const std::uint8_t* at, const std::uint8_t* end) {
    const std::uint8_t lead = *at;
    const std::ptrdiff_t left = end - at;
    if (lead < 0xC2 || left < 2 || !isContinuation(at[1]))
        return 0;
    if (lead < 0xE0)
        return 2;
    if (left < 3 || !isContinuation(at[2]))
        return 0;
    if (lead < 0xF0) {
        const bool overlong = lead == 0xE0 && at[1] < 0xA0;
        const bool surrogate = lead == 0xED && at[1] > 0x9F;
        return overlong || surrogate ? 0 : 3;
    }
    if (lead > 0xF4 || left < 4 || !isContinuation(at[3]))
        return 0;
    const bool overlong = lead == 0xF0 && at[1] < 0x90;
    const bool tooLarge = lead == 0xF4 && at[1] > 0x8F;
    return overlong || tooLarge ? 0 : 4;
}

std::string decodeLatin1(std::string_view bytes) {
    std::size_t high = 0;
    for (const char byte : bytes)
        high += static_cast<std::uint8_t>(byte) >> 7;
    if (high == 0)
        return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + high);
    for (const char byte : bytes) {
        const auto code = static_cast<std::uint8_t>(byte);
        if (code < 0x80) {
            text.push_back(byte);
        } else {
            text.push_back(static_cast<char>(0xC0 | (code >> 6)));
            text.push_back(static_cast<char>(0x80 | (code & 0x3F)));
        }
    }
    return text;
}

/// Encodes as Latin 1, handing each character without a place there to `misfit`, which says whether to go on.
template <typename Misfit>
bool encodeLatin1(std::string_view text, std::string& bytes, const Misfit& misfit) {
    const std::uint8_t* at = bytesOf(text);
    const std::uint8_t* const end = at + text.size();
    bytes.reserve(text.size());
    while (at != end) {
        const std::uint8_t* const special = skipASCII(at, end);
        bytes.append(reinterpret_cast<const char*>(at), static_cast<std::size_t>(special - at));
        at = special;
        if (at == end)
            break;
        const std::size_t size = multibyteSize(at, end);
        std::size_t consumed = size == 0 ? 1 : size;
        UChar32 code = 0xFFFD;
        if (size != 0) {
            std::size_t offset = 0;
            U8_NEXT_UNSAFE(at, offset, code);
        }
        at += consumed;
        if (code <= 0xFF)
            bytes.push_back(static_cast<char>(code));
        else if (!misfit(code))
            return false;
    }
    return true;
}

} // namespace

std::string_view name(StringEncoding encoding) {
    switch (encoding) {
    case StringEncoding::utf8:
        return "utf-8";
    case StringEncoding::isoLatin1:
        return "iso-8859-1";
    }
    fatalError("Unknown string encoding");
}

bool isValidUTF8(std::string_view bytes) {
    const std::uint8_t* at = bytesOf(bytes);
    const std::uint8_t* const end = at + bytes.size();
    while ((at = skipASCII(at, end)) != end) {
        // A run of characters beyond ASCII is finished here: looking for eight ASCII bytes after each of them would cost more than it
        // saves.
        do {
            const std::size_t size = multibyteSize(at, end);
            if (size == 0)
                return false;
            at += size;
        } while (at != end && *at >= 0x80);
    }
    return true;
}

std::optional<std::string> decode(std::string_view bytes, StringEncoding encoding) {
    if (encoding == StringEncoding::isoLatin1)
        return decodeLatin1(bytes);
    if (!isValidUTF8(bytes))
        return std::nullopt;
    return std::string(bytes);
}

std::optional<std::string> encode(std::string_view text, StringEncoding encoding) {
    if (encoding == StringEncoding::utf8)
        return std::string(text);
    std::string bytes;
    if (!encodeLatin1(text, bytes, [](UChar32) { return false; }))
        return std::nullopt;
    return bytes;
}

std::string encodeMarkup(std::string_view text, StringEncoding encoding) {
    if (encoding == StringEncoding::utf8)
        return std::string(text);
    std::string bytes;
    encodeLatin1(text, bytes, [&bytes](UChar32 code) {
        bytes.append("&#").append(std::to_string(code)).append(";");
        return true;
    });
    return bytes;
}

} // namespace brindle
