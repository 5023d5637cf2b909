#include "foundation/XMLPropertyList.hpp"

#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/Text.hpp"
#include "foundation/XMLParser.hpp"

#include <array>
#include <charconv>
#include <cmath>

namespace brindle {

namespace {

using Index = PropertyList::Index;
using Object = PropertyList::Object;

constexpr std::string_view base64Alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// RFC 4648 section 4, with white space anywhere; absent for any other character outside the alphabet.
std::optional<std::string> decodedBase64(std::string_view text) {
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    bool padded = false;
    for (const char character : text) {
        if (std::string_view(" \t\r\n").find(character) != std::string_view::npos)
            continue;
        const std::size_t value = base64Alphabet.find(character);
        padded = padded || character == '=';
        if (padded ? character != '=' : value == std::string_view::npos)
            return std::nullopt;
        if (padded)
            continue;
        bits = (bits << 6 | static_cast<std::uint32_t>(value)) & 0xFFFFFF;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<char>(bits >> count & 0xFF));
        }
    }
    return bytes;
}

std::optional<Object> integerObject(std::string_view text) {
    const std::size_t sign = !text.empty() && (text.front() == '-' || text.front() == '+');
    if (text.substr(sign, 2) == "0x" || text.substr(sign, 2) == "0X") {
        std::int64_t value = 0;
        const char* const end = text.data() + text.size();
        const auto result = std::from_chars(text.data() + sign + 2, end, value, 16);
        if (result.ec != std::errc() || result.ptr != end || value < 0)
            return std::nullopt;
        return text.front() == '-' ? -value : value;
    }
    if (const std::optional<std::int64_t> value = text::integer(text))
        return *value;
    // Beyond 64 bits with a sign it is read as a real.
    const std::string_view digits = text.substr(sign);
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    double real = HUGE_VAL;
    std::from_chars(digits.data(), digits.data() + digits.size(), real);
    return text.front() == '-' ? -real : real;
}

std::optional<Object> realObject(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double real = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, real);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return real;
}

/// Builds the table of objects out of a document's events.
class Builder : public XMLParserDelegate {
public:
    explicit Builder(XMLParser& parser) : _parser(parser) {}

    void didStartElement(std::string_view name, const XMLAttributes&) override {
        if (name == "plist" && !_sawRoot)
            return;
        if (_isLeaf)
            return fail("An element inside <" + _leaf + ">");
        if (name == "array")
            return open(PropertyList::Array());
        if (name == "dict")
            return open(PropertyList::Dictionary());
        _isLeaf = true;
        _leaf = name;
        _text.clear();
    }

    void didEndElement(std::string_view name) override {
        if (_isLeaf) {
            _isLeaf = false;
            closeLeaf();
        } else if (name != "plist") {
            closeContainer();
        }
    }

    void foundCharacters(std::string_view text) override {
        if (_isLeaf)
            _text.append(text);
    }

    void foundCDATA(std::string_view block) override { foundCharacters(block); }

    bool isComplete() const { return _sawRoot; }
    PropertyList& list() { return _list; }

private:
    struct Container {
        Index index = 0;
        std::optional<Index> key;
    };

    void fail(std::string message) { _parser.abortParsing(std::move(message)); }

    void open(Object container) {
        if (const std::optional<Index> index = place(std::move(container)))
            _open.push_back(Container{*index, std::nullopt});
    }

    void closeContainer() {
        const Container container = _open.back();
        _open.pop_back();
        if (container.key)
            return fail("A key without a value");
        Object& object = _list.objects[container.index];
        const auto* const pairs = std::get_if<PropertyList::Dictionary>(&object);
        if (pairs == nullptr || pairs->size() != 1)
            return;
        const auto* const key = _list.get<std::string>(pairs->front().first);
        const auto* const value = _list.get<std::int64_t>(pairs->front().second);
        if (key != nullptr && *key == "CF$UID" && value != nullptr && *value >= 0)
            object = PropertyList::UID{static_cast<std::uint64_t>(*value)};
    }

    void closeLeaf() {
        if (_leaf == "key")
            return closeKey();
        std::optional<Object> object = leafObject();
        if (!object)
            return fail("<" + _leaf + "> holds no such value");
        place(*std::move(object));
    }

    void closeKey() {
        const bool fits =
            !_open.empty() && !_open.back().key && std::holds_alternative<PropertyList::Dictionary>(_list.objects[_open.back().index]);
        if (!fits)
            return fail("A key out of place");
        _open.back().key = _list.add(_text);
    }

    std::optional<Object> leafObject() const {
        const std::string_view bare = text::trimmed(_text);
        if (_leaf == "string")
            return _text;
        if (_leaf == "true")
            return true;
        if (_leaf == "false")
            return false;
        if (_leaf == "integer")
            return integerObject(bare);
        if (_leaf == "real")
            return realObject(bare);
        if (_leaf == "date")
            return ISO8601DateFormatter::date(bare);
        if (_leaf == "data") {
            if (std::optional<std::string> bytes = decodedBase64(_text))
                return PropertyList::Data{*std::move(bytes)};
        }
        return std::nullopt;
    }

    /// Adds an object to the container that is open, or as the root; absent when it has no place there.
    std::optional<Index> place(Object object) {
        if (_open.empty()) {
            if (_sawRoot) {
                fail("A second root");
                return std::nullopt;
            }
            _sawRoot = true;
            _list.root = _list.add(std::move(object));
            return _list.root;
        }
        Container& container = _open.back();
        const Index index = _list.add(std::move(object));
        Object& parent = _list.objects[container.index];
        if (auto* const array = std::get_if<PropertyList::Array>(&parent)) {
            array->push_back(index);
            return index;
        }
        if (!container.key) {
            fail("A value without a key");
            return std::nullopt;
        }
        std::get<PropertyList::Dictionary>(parent).emplace_back(*container.key, index);
        container.key.reset();
        return index;
    }

    XMLParser& _parser;
    PropertyList _list;
    std::vector<Container> _open;
    bool _sawRoot = false;
    bool _isLeaf = false;
    std::string _leaf;
    std::string _text;
};

} // namespace

tl::expected<PropertyList, PropertyList::Error> readXMLPropertyList(std::string_view bytes) {
    XMLParser parser(bytes, isValidUTF8(bytes) ? StringEncoding::utf8 : StringEncoding::isoLatin1);
    Builder builder(parser);
    parser.delegate = &builder;
    if (!parser.parse())
        return tl::unexpected(PropertyList::Error{"Not a property list: " + parser.parserError()->message});
    if (!builder.isComplete())
        return tl::unexpected(PropertyList::Error{"Not a property list: it holds nothing"});
    return std::move(builder.list());
}

} // namespace brindle
