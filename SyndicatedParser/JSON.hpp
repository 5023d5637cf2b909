#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brindle {

/// Why a JSON value is not what was asked for. The values are public.
enum class JSONValueError {
    unsupportedType = 999,
    indexOutOfBounds = 900,
    elementTooDeep = 902,
    wrongType = 901,
    notExist = 500,
    invalidJSON = 490
};

/// One sentence for people, in English.
std::string_view description(JSONValueError error);

/// A value of a JSON document (RFC 8259), for lenient reading: asked for what it is not, it gives nothing. A value keeps its document alive
/// and is cheap to copy; the texts that it gives live as long as a value of the document does. Thread: any; a value.
class JSON {
public:
    enum class Type { number, string, bool_, array, dictionary, null, unknown };

    class Dictionary;

    /// The value of a document; the null value when `text` is not JSON with an object or array at the top level.
    explicit JSON(std::string_view text);

    Type type() const;

    /// `unsupportedType` for a value that JSON does not have.
    std::optional<JSONValueError> error() const;

    std::optional<std::string_view> string() const;

    /// A number's integer part, cut to the range; 1 and 0 for the booleans.
    std::optional<std::int64_t> integer() const;

    std::optional<std::vector<JSON>> array() const;
    std::optional<Dictionary> dictionary() const;

private:
    explicit JSON(std::shared_ptr<const nlohmann::json> value) : _value(std::move(value)) {}
    JSON at(const nlohmann::json& part) const;

    std::shared_ptr<const nlohmann::json> _value; ///< owns the whole document
};

/// The members of a JSON object by their keys; of repeated keys the last counts.
class JSON::Dictionary {
public:
    bool empty() const;
    std::optional<JSON> operator[](std::string_view key) const;

    /// The text under `key`; absent when there is none or the value is of another type.
    std::optional<std::string_view> string(std::string_view key) const;

private:
    friend class JSON;
    explicit Dictionary(JSON object) : _object(std::move(object)) {}

    JSON _object;
};

} // namespace brindle
