#include "foundation/BinaryPropertyList.hpp"
#include "foundation/StringEncoding.hpp"

#include <bit>
#include <cmath>
#include <limits>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace brindle {

namespace {

using Error = PropertyList::Error;
using Object = PropertyList::Object;

constexpr std::string_view signature = "bplist0";
constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;

/// Seconds from 1970-01-01 to 2001-01-01, where the dates of property lists begin.
constexpr double referenceDate = 978307200;

/// Reads one file. What is damaged is absent, and the first such object ends the reading.
class Reader {
public:
    explicit Reader(std::string_view bytes) : _bytes(bytes) {}

    tl::expected<PropertyList, Error> read() {
        if (!readTrailer())
            return tl::unexpected(Error{"Not a property list: its trailer is damaged"});
        PropertyList list;
        list.root = static_cast<PropertyList::Index>(_top);
        list.objects.reserve(_count);
        // What lies between header and table can be spent once: objects that share bytes run out of it.
        _budget = _tableOffset - headerSize;
        for (std::size_t index = 0; index < _count; ++index) {
            const std::uint64_t offset = number(_tableOffset + index * _offsetSize, _offsetSize);
            std::optional<Object> object = offset < headerSize ? std::nullopt : readObject(offset);
            if (!object)
                return tl::unexpected(Error{"Not a property list: object " + std::to_string(index) + " is damaged"});
            list.objects.push_back(*std::move(object));
        }
        return list;
    }

private:
    bool readTrailer() {
        if (_bytes.size() < headerSize + trailerSize)
            return false;
        const std::size_t trailer = _bytes.size() - trailerSize;
        _offsetSize = byte(trailer + 6);
        _referenceSize = byte(trailer + 7);
        const std::uint64_t count = number(trailer + 8, 8);
        _top = number(trailer + 16, 8);
        const std::uint64_t table = number(trailer + 24, 8);
        if (_offsetSize < 1 || _offsetSize > 8 || _referenceSize < 1 || _referenceSize > 8 || table < headerSize || table > trailer)
            return false;
        // Every object has a byte of its own at least.
        if (count > (trailer - table) / _offsetSize || count > table - headerSize ||
            count > std::numeric_limits<PropertyList::Index>::max())
            return false;
        _count = static_cast<std::size_t>(count);
        _tableOffset = static_cast<std::size_t>(table);
        return _top < count;
    }

    std::uint8_t byte(std::size_t at) const { return static_cast<std::uint8_t>(_bytes[at]); }

    /// A big-endian number of one to eight bytes, which the caller has checked to be there.
    std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t index = 0; index < size; ++index)
            value = value << 8 | byte(at + index);
        return value;
    }

    /// Moves `at` over `count` units of `size` bytes of an object; absent when they aren't there or were spent before.
    std::optional<std::string_view> take(std::size_t& at, std::uint64_t count, std::size_t size) {
        if (at > _tableOffset || count > (_tableOffset - at) / size || count * size > _budget)
            return std::nullopt;
        const std::string_view taken = _bytes.substr(at, static_cast<std::size_t>(count) * size);
        at += taken.size();
        _budget -= taken.size();
        return taken;
    }

    std::optional<std::uint64_t> takeNumber(std::size_t& at, std::size_t size) {
        const std::size_t begin = at;
        if (!take(at, 1, size))
            return std::nullopt;
        return number(begin, size);
    }

    std::optional<Object> readObject(std::uint64_t offset) {
        if (offset >= _tableOffset)
            return std::nullopt;
        auto at = static_cast<std::size_t>(offset);
        const std::optional<std::uint64_t> marker = takeNumber(at, 1);
        if (!marker)
            return std::nullopt;
        const auto kind = static_cast<std::uint8_t>(*marker >> 4);
        const auto low = static_cast<std::uint8_t>(*marker & 0x0F);
        switch (kind) {
        case 0x0:
            return readConstant(low);
        case 0x1:
            return readInteger(at, low);
        case 0x2:
            return readReal(at, low);
        case 0x3:
            return low == 3 ? readDate(at) : std::nullopt;
        case 0x8:
            return readUID(at, low + 1U);
        default:
            break;
        }
        const std::optional<std::uint64_t> count = low == 0x0F ? readCount(at) : low;
        return count ? readSized(at, kind, *count) : std::nullopt;
    }

    static std::optional<Object> readConstant(std::uint8_t low) {
        switch (low) {
        case 0x0:
            return PropertyList::Null();
        case 0x8:
            return false;
        case 0x9:
            return true;
        default:
            return std::nullopt;
        }
    }

    std::optional<Object> readInteger(std::size_t& at, std::uint8_t low) {
        if (low < 4) {
            // Only the eight-byte form has a sign.
            const std::optional<std::uint64_t> value = takeNumber(at, std::size_t(1) << low);
            return value ? std::optional<Object>(static_cast<std::int64_t>(*value)) : std::nullopt;
        }
        const std::size_t begin = at;
        if (low != 4 || !take(at, 1, 16))
            return std::nullopt;
        const std::uint64_t high = number(begin, 8);
        const std::uint64_t rest = number(begin + 8, 8);
        const bool fits = high == (rest >> 63 == 0 ? 0 : std::numeric_limits<std::uint64_t>::max());
        if (fits)
            return static_cast<std::int64_t>(rest);
        return static_cast<double>(static_cast<std::int64_t>(high)) * 18446744073709551616.0 + static_cast<double>(rest);
    }

    std::optional<Object> readReal(std::size_t& at, std::uint8_t low) {
        if (low != 2 && low != 3)
            return std::nullopt;
        const std::optional<std::uint64_t> bits = takeNumber(at, std::size_t(1) << low);
        if (!bits)
            return std::nullopt;
        if (low == 3)
            return std::bit_cast<double>(*bits);
        return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*bits)));
    }

    std::optional<Object> readDate(std::size_t& at) {
        const std::optional<std::uint64_t> bits = takeNumber(at, 8);
        if (!bits)
            return std::nullopt;
        const double microseconds = (std::bit_cast<double>(*bits) + referenceDate) * 1e6;
        constexpr double limit = 9.2e18;
        if (!(microseconds > -limit && microseconds < limit))
            return std::nullopt;
        return Date(std::chrono::microseconds(std::llround(microseconds)));
    }

    std::optional<Object> readUID(std::size_t& at, std::size_t size) {
        const std::optional<std::uint64_t> value = size > 8 ? std::nullopt : takeNumber(at, size);
        return value ? std::optional<Object>(PropertyList::UID{*value}) : std::nullopt;
    }

    /// The count that stands as an integer object of its own where four bits don't hold it.
    std::optional<std::uint64_t> readCount(std::size_t& at) {
        const std::optional<std::uint64_t> marker = takeNumber(at, 1);
        if (!marker || (*marker & ~std::uint64_t(3)) != 0x10)
            return std::nullopt;
        return takeNumber(at, std::size_t(1) << (*marker & 3));
    }

    std::optional<Object> readSized(std::size_t& at, std::uint8_t kind, std::uint64_t count) {
        switch (kind) {
        case 0x4:
            if (const std::optional<std::string_view> data = take(at, count, 1))
                return PropertyList::Data{std::string(*data)};
            return std::nullopt;
        case 0x5:
            if (const std::optional<std::string_view> ascii = take(at, count, 1))
                return decode(*ascii, StringEncoding::isoLatin1);
            return std::nullopt;
        case 0x6:
            if (const std::optional<std::string_view> units = take(at, count, 2))
                return textOfUTF16(at - units->size(), *units);
            return std::nullopt;
        case 0xA:
        case 0xB:
        case 0xC:
            return readArray(at, count);
        case 0xD:
            return readDictionary(at, count);
        default:
            return std::nullopt;
        }
    }

    std::string textOfUTF16(std::size_t at, std::string_view units) const {
        std::string text;
        text.reserve(units.size());
        const std::size_t end = at + units.size();
        while (at < end) {
            auto code = static_cast<UChar32>(number(at, 2));
            at += 2;
            if (U16_IS_SURROGATE(code)) {
                const bool paired = U16_IS_SURROGATE_LEAD(code) && at < end && U16_IS_TRAIL(number(at, 2));
                code = paired ? static_cast<UChar32>(U16_GET_SUPPLEMENTARY(code, static_cast<UChar32>(number(at, 2)))) : 0xFFFD;
                at += paired ? 2 : 0;
            }
            char encoded[U8_MAX_LENGTH];
            std::size_t size = 0;
            U8_APPEND_UNSAFE(encoded, size, code);
            text.append(encoded, size);
        }
        return text;
    }

    std::optional<PropertyList::Index> reference(std::size_t at) const {
        const std::uint64_t value = number(at, _referenceSize);
        return value < _count ? std::optional(static_cast<PropertyList::Index>(value)) : std::nullopt;
    }

    std::optional<Object> readArray(std::size_t& at, std::uint64_t count) {
        std::size_t position = at;
        if (!take(at, count, _referenceSize))
            return std::nullopt;
        PropertyList::Array array;
        array.reserve(static_cast<std::size_t>(count));
        for (; position < at; position += _referenceSize) {
            const std::optional<PropertyList::Index> element = reference(position);
            if (!element)
                return std::nullopt;
            array.push_back(*element);
        }
        return array;
    }

    /// All keys stand before all values.
    std::optional<Object> readDictionary(std::size_t& at, std::uint64_t count) {
        std::size_t position = at;
        if (!take(at, count, 2 * _referenceSize))
            return std::nullopt;
        const std::size_t valuesOffset = static_cast<std::size_t>(count) * _referenceSize;
        PropertyList::Dictionary dictionary;
        dictionary.reserve(static_cast<std::size_t>(count));
        for (std::uint64_t pair = 0; pair < count; ++pair, position += _referenceSize) {
            const std::optional<PropertyList::Index> key = reference(position);
            const std::optional<PropertyList::Index> value = reference(position + valuesOffset);
            if (!key || !value)
                return std::nullopt;
            dictionary.emplace_back(*key, *value);
        }
        return dictionary;
    }

    std::string_view _bytes;
    std::size_t _offsetSize = 0;
    std::size_t _referenceSize = 0;
    std::size_t _count = 0;
    std::uint64_t _top = 0;
    std::size_t _tableOffset = 0;
    std::size_t _budget = 0;
};

} // namespace

bool isBinaryPropertyList(std::string_view bytes) {
    return bytes.substr(0, signature.size()) == signature;
}

tl::expected<PropertyList, Error> readBinaryPropertyList(std::string_view bytes) {
    return Reader(bytes).read();
}

} // namespace brindle
