#pragma once

#include "foundation/Object.hpp"
#include "foundation/PropertyList.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brindle {

class Coder;

/// An object with an archive form. `archiveClasses` names its class and the bases of it, most derived first, without the platform's root
/// class.
class Coding : public Object {
public:
    virtual std::vector<std::string_view> archiveClasses() const = 0;
    virtual void encode(Coder& coder) const = 0;
};

/// Plain values that stand in arrays and dictionaries of an archive.
using CodedValue = std::variant<std::int64_t, std::string>;
using CodedDictionary = std::vector<std::pair<std::string, CodedValue>>;

/// What an object writes its fields to. Each key once per object.
class Coder {
public:
    virtual ~Coder() = default;
    virtual void encode(std::string_view key, std::string_view text) = 0;
    virtual void encode(std::string_view key, std::int64_t integer) = 0;
    virtual void encode(std::string_view key, const PropertyList::Data& data) = 0;
    virtual void encode(std::string_view key, std::shared_ptr<const Coding> object) = 0;
    virtual void encode(std::string_view key, const std::vector<std::shared_ptr<const Coding>>& array) = 0;
    virtual void encode(std::string_view key, const std::vector<CodedDictionary>& array) = 0;
};

/// What an object reads its fields from. A missing key and a value of another type give nothing alike.
class Decoder {
public:
    virtual ~Decoder() = default;
    virtual std::optional<std::string> decodeText(std::string_view key) const = 0;
    /// An integer, inline or a number object.
    virtual std::optional<std::int64_t> decodeInteger(std::string_view key) const = 0;
    /// Bytes, inline or a data object.
    virtual std::optional<std::string> decodeData(std::string_view key) const = 0;
    /// Absent (null) also when the object could not be decoded, or stands above this one in the archive.
    virtual std::shared_ptr<Coding> decodeObject(std::string_view key) const = 0;
    /// The elements of an array that are decoded objects, in order; absent when the value is no array.
    virtual std::optional<std::vector<std::shared_ptr<Coding>>> decodeObjects(std::string_view key) const = 0;
    /// The elements of an array that are dictionaries with text keys, each with those of its values that are text or integer.
    virtual std::optional<std::vector<CodedDictionary>> decodeDictionaries(std::string_view key) const = 0;
};

} // namespace brindle
