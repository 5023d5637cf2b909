#include "SyndicatedParser/JSON.hpp"

#include "foundation/JSONSerialization.hpp"

#include <limits>
#include <utility>

namespace brindle {

namespace {

std::int64_t integerPart(double number) {
    constexpr double limit = 9223372036854775808.0;
    if (number >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (number < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(number);
}

} // namespace

std::string_view description(JSONValueError error) {
    switch (error) {
    case JSONValueError::unsupportedType:
        break;
    case JSONValueError::indexOutOfBounds:
        return "Array Index is out of bounds.";
    case JSONValueError::elementTooDeep:
        return "Element too deep. Increase maxObjectDepth and make sure there is no reference loop.";
    case JSONValueError::wrongType:
        return "Couldn't merge, because the JSONs differ in type on top level.";
    case JSONValueError::notExist:
        return "Dictionary key does not exist.";
    case JSONValueError::invalidJSON:
        return "JSON is invalid.";
    }
    return "It is an unsupported type.";
}

JSON::JSON(std::string_view text)
    : _value(std::make_shared<const nlohmann::json>(JSONSerialization::object(text).value_or(nlohmann::json()))) {}

JSON JSON::at(const nlohmann::json& part) const {
    return JSON(std::shared_ptr<const nlohmann::json>(_value, &part));
}

JSON::Type JSON::type() const {
    switch (_value->type()) {
    case nlohmann::json::value_t::null:
        return Type::null;
    case nlohmann::json::value_t::object:
        return Type::dictionary;
    case nlohmann::json::value_t::array:
        return Type::array;
    case nlohmann::json::value_t::string:
        return Type::string;
    case nlohmann::json::value_t::boolean:
        return Type::bool_;
    case nlohmann::json::value_t::number_integer:
    case nlohmann::json::value_t::number_unsigned:
    case nlohmann::json::value_t::number_float:
        return Type::number;
    case nlohmann::json::value_t::binary:
    case nlohmann::json::value_t::discarded:
        break;
    }
    return Type::unknown;
}

std::optional<JSONValueError> JSON::error() const {
    return type() == Type::unknown ? std::optional(JSONValueError::unsupportedType) : std::nullopt;
}

std::optional<std::string_view> JSON::string() const {
    const auto* const text = _value->get_ptr<const std::string*>();
    return text ? std::optional<std::string_view>(*text) : std::nullopt;
}

std::optional<std::int64_t> JSON::integer() const {
    if (const auto* const truth = _value->get_ptr<const bool*>())
        return *truth ? 1 : 0;
    if (const auto* const number = _value->get_ptr<const double*>())
        return integerPart(*number);
    // An unsigned number also answers to the signed type, so it is asked for first.
    if (const auto* const number = _value->get_ptr<const std::uint64_t*>())
        return static_cast<std::int64_t>(std::min<std::uint64_t>(*number, std::numeric_limits<std::int64_t>::max()));
    if (const auto* const number = _value->get_ptr<const std::int64_t*>())
        return *number;
    return std::nullopt;
}

std::optional<std::vector<JSON>> JSON::array() const {
    if (!_value->is_array())
        return std::nullopt;
    std::vector<JSON> elements;
    elements.reserve(_value->size());
    for (const nlohmann::json& element : *_value)
        elements.push_back(at(element));
    return elements;
}

std::optional<JSON::Dictionary> JSON::dictionary() const {
    return _value->is_object() ? std::optional(Dictionary(*this)) : std::nullopt;
}

bool JSON::Dictionary::empty() const {
    return _object._value->empty();
}

std::optional<JSON> JSON::Dictionary::operator[](std::string_view key) const {
    const auto found = _object._value->find(key);
    return found != _object._value->end() ? std::optional(_object.at(*found)) : std::nullopt;
}

std::optional<std::string_view> JSON::Dictionary::string(std::string_view key) const {
    const std::optional<JSON> value = (*this)[key];
    return value ? value->string() : std::nullopt;
}

} // namespace brindle
