#include "SyndicatedParser/JSON.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace brindle {
namespace {

JSON member(std::string_view value) {
    const std::string text = "{\"a\":" + std::string(value) + "}";
    return JSON(text).dictionary().value()["a"].value();
}

void expectNothing(const JSON& json) {
    EXPECT_FALSE(json.dictionary().has_value());
    EXPECT_FALSE(json.array().has_value());
    EXPECT_FALSE(json.string().has_value());
    EXPECT_FALSE(json.integer().has_value());
}

TEST(JSONTest, IsNullForATextThatIsNoJSON) {
    for (const std::string_view text : {"", "x", "null", "1", "\"a\"", "{", "{\"a\":}", "[1,]", "\xFF"}) {
        const JSON json(text);
        EXPECT_EQ(json.type(), JSON::Type::null) << text;
        EXPECT_EQ(json.error(), std::nullopt) << text;
        expectNothing(json);
    }
}

TEST(JSONTest, TellsTheTypeOfEachValue) {
    EXPECT_EQ(member("1").type(), JSON::Type::number);
    EXPECT_EQ(member("1.5").type(), JSON::Type::number);
    EXPECT_EQ(member("\"x\"").type(), JSON::Type::string);
    EXPECT_EQ(member("true").type(), JSON::Type::bool_);
    EXPECT_EQ(member("[]").type(), JSON::Type::array);
    EXPECT_EQ(member("{}").type(), JSON::Type::dictionary);
    EXPECT_EQ(member("null").type(), JSON::Type::null);
    expectNothing(member("null"));
}

TEST(JSONTest, GivesMembersByKey) {
    const auto dictionary = JSON("{\"a\":1,\"b\":\"x\"}").dictionary();
    ASSERT_TRUE(dictionary.has_value());
    EXPECT_EQ((*dictionary)["a"]->integer(), 1);
    EXPECT_EQ((*dictionary)["a"]->string(), std::nullopt);
    EXPECT_EQ(dictionary->string("b"), "x");
    EXPECT_EQ(dictionary->string("a"), std::nullopt);
    EXPECT_FALSE((*dictionary)["c"].has_value());
}

TEST(JSONTest, TellsAnEmptyObjectFromNone) {
    ASSERT_TRUE(JSON("{}").dictionary().has_value());
    EXPECT_TRUE(JSON("{}").dictionary()->empty());
    EXPECT_FALSE(JSON("[]").dictionary().has_value());
}

TEST(JSONTest, GivesTheElementsOfAnArray) {
    const auto array = JSON("[1,\"x\",null]").array();
    ASSERT_TRUE(array.has_value());
    ASSERT_EQ(array->size(), 3U);
    EXPECT_EQ((*array)[0].integer(), 1);
    EXPECT_EQ((*array)[1].string(), "x");
    EXPECT_EQ((*array)[2].type(), JSON::Type::null);
}

TEST(JSONTest, ReadsNumbersAndBooleansAsIntegers) {
    EXPECT_EQ(member("true").integer(), 1);
    EXPECT_EQ(member("false").integer(), 0);
    EXPECT_EQ(member("-7").integer(), -7);
    EXPECT_EQ(member("1.9").integer(), 1);
    EXPECT_EQ(member("-1.9").integer(), -1);
    EXPECT_EQ(member("\"7\"").integer(), std::nullopt);
}

TEST(JSONTest, CutsNumbersToTheRangeOfIntegers) {
    EXPECT_EQ(member("18446744073709551615").integer(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(member("1e300").integer(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(member("-1e300").integer(), std::numeric_limits<std::int64_t>::min());
}

TEST(JSONValueErrorTest, HasAValueAndATextForEachCase) {
    EXPECT_EQ(static_cast<int>(JSONValueError::unsupportedType), 999);
    EXPECT_EQ(static_cast<int>(JSONValueError::indexOutOfBounds), 900);
    EXPECT_EQ(static_cast<int>(JSONValueError::elementTooDeep), 902);
    EXPECT_EQ(static_cast<int>(JSONValueError::wrongType), 901);
    EXPECT_EQ(static_cast<int>(JSONValueError::notExist), 500);
    EXPECT_EQ(static_cast<int>(JSONValueError::invalidJSON), 490);
    EXPECT_EQ(description(JSONValueError::unsupportedType), "It is an unsupported type.");
    EXPECT_EQ(description(JSONValueError::indexOutOfBounds), "Array Index is out of bounds.");
    EXPECT_EQ(
        description(JSONValueError::elementTooDeep), "Element too deep. Increase maxObjectDepth and make sure there is no reference loop.");
    EXPECT_EQ(description(JSONValueError::wrongType), "Couldn't merge, because the JSONs differ in type on top level.");
    EXPECT_EQ(description(JSONValueError::notExist), "Dictionary key does not exist.");
    EXPECT_EQ(description(JSONValueError::invalidJSON), "JSON is invalid.");
}

} // namespace
} // namespace brindle
