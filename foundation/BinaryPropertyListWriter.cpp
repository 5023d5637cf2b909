#include "foundation/BinaryPropertyList.hpp"
#include "foundation/FatalError.hpp"

#include <algorithm>
#include <bit>
#include <string>
#include <unicode/utf16.h>
#include <unicode/utf8.h>
#include <unordered_map>
#include <vector>

namespace brindle {

namespace {

using Index = PropertyList::Index;

constexpr double referenceDate = 978307200; // 2001-01-01 in seconds since 1970

/// How many bytes a number needs, of the widths that every reader takes.
std::size_t width(std::uint64_t number) {
    if (number <= 0xFF)
        return 1;
    if (number <= 0xFFFF)
        return 2;
    return number <= 0xFFFFFFFF ? 4 : 8;
}

void appendNumber(std::string& bytes, std::uint64_t number, std::size_t size) {
    for (std::size_t left = size; left > 0; --left)
        bytes.push_back(static_cast<char>(number >> (8 * (left - 1)) & 0xFF));
}

void appendInteger(std::string& bytes, std::int64_t integer) {
    // A negative number is a large one without its sign, so it takes eight bytes, the only width that has a sign.
    const auto number = static_cast<std::uint64_t>(integer);
    const std::size_t size = width(number);
    bytes.push_back(static_cast<char>(0x10U | static_cast<unsigned>(std::countr_zero(size))));
    appendNumber(bytes, number, size);
}

void appendMarker(std::string& bytes, std::uint8_t kind, std::size_t count) {
    bytes.push_back(static_cast<char>(std::size_t(kind) << 4 | std::min<std::size_t>(count, 15)));
    if (count >= 15)
        appendInteger(bytes, static_cast<std::int64_t>(count));
}

bool isASCII(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // inside ICU's macro

std::string utf16(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t at = 0; at < text.size();) {
        UChar32 code = 0;
        U8_NEXT_OR_FFFD(text.data(), at, text.size(), code);
        if (code > 0xFFFF) {
            appendNumber(bytes, U16_LEAD(code), 2);
            appendNumber(bytes, U16_TRAIL(code), 2);
        } else {
            appendNumber(bytes, static_cast<std::uint64_t>(code), 2);
        }
    }
    return bytes;
}

#pragma GCC diagnostic pop

/// Gives each object its number in the file: equal texts and numbers share one.
class Numbering {
public:
    explicit Numbering(const PropertyList& list) {
        _numbers.reserve(list.objects.size());
        _texts.reserve(list.objects.size() / 2);
        for (Index index = 0; index < list.objects.size(); ++index) {
            const Index next = static_cast<Index>(_written.size());
            const Index number = std::visit([&](const auto& object) { return numberOf(object, next); }, list.objects[index]);
            if (number == next)
                _written.push_back(index);
            _numbers.push_back(number);
        }
    }

    std::size_t number(Index index) const {
        if (index >= _numbers.size())
            fatalError("A property list refers to an object that it does not have");
        return _numbers[index];
    }

    /// One object for each number, in order.
    const std::vector<Index>& written() const { return _written; }

private:
    template <typename Object>
    Index numberOf(const Object&, Index next) {
        return next;
    }
    Index numberOf(const std::string& text, Index next) { return _texts.try_emplace(text, next).first->second; }
    Index numberOf(std::int64_t integer, Index next) { return _integers.try_emplace(integer, next).first->second; }
    Index numberOf(bool flag, Index next) { return _flags.try_emplace(flag, next).first->second; }
    Index numberOf(double real, Index next) { return _reals.try_emplace(std::bit_cast<std::uint64_t>(real), next).first->second; }
    Index numberOf(const PropertyList::UID& uid, Index next) { return _uids.try_emplace(uid.value, next).first->second; }

    std::vector<Index> _numbers;
    std::vector<Index> _written;
    std::unordered_map<std::string_view, Index> _texts;
    std::unordered_map<std::int64_t, Index> _integers;
    std::unordered_map<bool, Index> _flags;
    std::unordered_map<std::uint64_t, Index> _reals;
    std::unordered_map<std::uint64_t, Index> _uids;
};

/// Appends objects to the file's bytes.
class Writer {
public:
    explicit Writer(const Numbering& numbering) : _numbering(numbering), _referenceSize(width(numbering.written().size())) {}

    std::size_t referenceSize() const { return _referenceSize; }
    std::string& bytes() { return _bytes; }

    void operator()(PropertyList::Null) { _bytes.push_back(0x00); }
    void operator()(bool flag) { _bytes.push_back(flag ? 0x09 : 0x08); }
    void operator()(std::int64_t integer) { appendInteger(_bytes, integer); }

    void operator()(double real) {
        _bytes.push_back(0x23);
        appendNumber(_bytes, std::bit_cast<std::uint64_t>(real), 8);
    }

    void operator()(Date date) {
        _bytes.push_back(0x33);
        const double seconds = static_cast<double>(date.time_since_epoch().count()) / 1e6 - referenceDate;
        appendNumber(_bytes, std::bit_cast<std::uint64_t>(seconds), 8);
    }

    void operator()(const PropertyList::Data& data) {
        appendMarker(_bytes, 0x4, data.bytes.size());
        _bytes.append(data.bytes);
    }

    void operator()(const std::string& text) {
        if (isASCII(text)) {
            appendMarker(_bytes, 0x5, text.size());
            _bytes.append(text);
            return;
        }
        const std::string units = utf16(text);
        appendMarker(_bytes, 0x6, units.size() / 2);
        _bytes.append(units);
    }

    void operator()(const PropertyList::UID& uid) {
        const std::size_t size = width(uid.value);
        _bytes.push_back(static_cast<char>(0x80 | (size - 1)));
        appendNumber(_bytes, uid.value, size);
    }

    void operator()(const PropertyList::Array& array) {
        appendMarker(_bytes, 0xA, array.size());
        for (const Index element : array)
            appendReference(element);
    }

    void operator()(const PropertyList::Dictionary& dictionary) {
        appendMarker(_bytes, 0xD, dictionary.size());
        for (const auto& pair : dictionary)
            appendReference(pair.first);
        for (const auto& pair : dictionary)
            appendReference(pair.second);
    }

private:
    void appendReference(Index index) { appendNumber(_bytes, _numbering.number(index), _referenceSize); }

    const Numbering& _numbering;
    std::size_t _referenceSize;
    std::string _bytes = "bplist00";
};

} // namespace

std::string writeBinaryPropertyList(const PropertyList& list) {
    const Numbering numbering(list);
    const std::size_t top = numbering.number(list.root);
    Writer writer(numbering);
    std::vector<std::size_t> offsets;
    offsets.reserve(numbering.written().size());
    for (const Index index : numbering.written()) {
        offsets.push_back(writer.bytes().size());
        std::visit(writer, list.objects[index]);
    }
    std::string& bytes = writer.bytes();
    const std::size_t table = bytes.size();
    const std::size_t offsetSize = width(table);
    for (const std::size_t offset : offsets)
        appendNumber(bytes, offset, offsetSize);
    bytes.append(6, '\0');
    bytes.push_back(static_cast<char>(offsetSize));
    bytes.push_back(static_cast<char>(writer.referenceSize()));
    appendNumber(bytes, offsets.size(), 8);
    appendNumber(bytes, top, 8);
    appendNumber(bytes, table, 8);
    return std::move(bytes);
}

} // namespace brindle
