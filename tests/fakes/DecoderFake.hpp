#pragma once

#include "foundation/Coding.hpp"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

/// The fields of an archived object as a test sets them.
class DecoderFake : public Decoder {
public:
    std::map<std::string, std::string, std::less<>> texts;
    std::map<std::string, std::int64_t, std::less<>> integers;
    std::map<std::string, std::string, std::less<>> data;
    std::map<std::string, std::shared_ptr<Coding>, std::less<>> objects;
    std::map<std::string, std::vector<std::shared_ptr<Coding>>, std::less<>> arrays;
    std::map<std::string, std::vector<CodedDictionary>, std::less<>> dictionaries;

    std::optional<std::string> decodeText(std::string_view key) const override { return find(texts, key); }
    std::optional<std::int64_t> decodeInteger(std::string_view key) const override { return find(integers, key); }
    std::optional<std::string> decodeData(std::string_view key) const override { return find(data, key); }
    std::shared_ptr<Coding> decodeObject(std::string_view key) const override { return find(objects, key).value_or(nullptr); }
    std::optional<std::vector<std::shared_ptr<Coding>>> decodeObjects(std::string_view key) const override { return find(arrays, key); }
    std::optional<std::vector<CodedDictionary>> decodeDictionaries(std::string_view key) const override { return find(dictionaries, key); }

private:
    template <typename Map>
    static std::optional<typename Map::mapped_type> find(const Map& map, std::string_view key) {
        const auto field = map.find(key);
        return field == map.end() ? std::nullopt : std::optional(field->second);
    }
};

/// Takes down the fields that an object writes, and can be read as what they come back as.
class CoderFake : public Coder {
public:
    std::vector<std::string> keys; ///< in the order of writing
    DecoderFake fields;

    void encode(std::string_view key, std::string_view text) override { fields.texts[note(key)] = text; }
    void encode(std::string_view key, std::int64_t integer) override { fields.integers[note(key)] = integer; }
    void encode(std::string_view key, const PropertyList::Data& data) override { fields.data[note(key)] = data.bytes; }
    void encode(std::string_view key, std::shared_ptr<const Coding> object) override {
        fields.objects[note(key)] = std::const_pointer_cast<Coding>(std::move(object));
    }
    void encode(std::string_view key, const std::vector<std::shared_ptr<const Coding>>& array) override {
        auto& list = fields.arrays[note(key)];
        for (const auto& object : array)
            list.push_back(std::const_pointer_cast<Coding>(object));
    }
    void encode(std::string_view key, const std::vector<CodedDictionary>& array) override { fields.dictionaries[note(key)] = array; }

private:
    const std::string& note(std::string_view key) { return keys.emplace_back(key); }
};

} // namespace brindle
