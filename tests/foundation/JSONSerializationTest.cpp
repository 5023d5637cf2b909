#include "foundation/JSONSerialization.hpp"

#include <gtest/gtest.h>

namespace brindle {

namespace {

std::string nested(std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
}

} // namespace

TEST(JSONSerializationTest, ReadsAnObjectOrAnArray) {
    const std::optional<nlohmann::json> object = JSONSerialization::object(R"( {"a": [1, "b", null, true, 1.5]} )");
    ASSERT_TRUE(object);
    EXPECT_EQ(object->at("a").size(), 5U);
    EXPECT_TRUE(JSONSerialization::object("\r\n\t []"));
}

TEST(JSONSerializationTest, RefusesAnythingElseAtTheTop) {
    for (const std::string_view bad : {"", "  ", "1", "\"a\"", "null", "true", "<rss/>", "x{}", "\xC2\xA0{}"})
        EXPECT_FALSE(JSONSerialization::object(bad)) << bad;
}

TEST(JSONSerializationTest, RefusesInvalidDocuments) {
    for (const std::string_view bad :
        {"{", "{\"a\"}", "[1,]", "[1] 2", "{'a':1}", "[\"\xFF\"]", "[\"\\ud800\"]", "[01]", "[\"a\nb\"]", "[//\n]"})
        EXPECT_FALSE(JSONSerialization::object(bad)) << bad;
}

TEST(JSONSerializationTest, PassesOverOneByteOrderMark) {
    EXPECT_TRUE(JSONSerialization::object("\xEF\xBB\xBF{}"));
    EXPECT_FALSE(JSONSerialization::object("\xEF\xBB\xBF\xEF\xBB\xBF{}"));
}

TEST(JSONSerializationTest, TheLastOfRepeatedKeysWins) {
    EXPECT_EQ(JSONSerialization::object(R"({"a": 1, "a": 2})")->at("a"), 2);
}

TEST(JSONSerializationTest, ReadsAHugeIntegerAsANumber) {
    const std::optional<nlohmann::json> object = JSONSerialization::object(R"({"id": 123456789012345678901234567890, "title": "t"})");
    ASSERT_TRUE(object);
    EXPECT_TRUE(object->at("id").is_number());
    EXPECT_EQ(object->at("title"), "t");
}

TEST(JSONSerializationTest, NestsToTheLimitAndNoDeeper) {
    EXPECT_TRUE(JSONSerialization::object(nested(JSONSerialization::maximumDepth)));
    EXPECT_FALSE(JSONSerialization::object(nested(JSONSerialization::maximumDepth + 1)));
    EXPECT_FALSE(JSONSerialization::object(std::string(1'000'000, '[')));
}

TEST(JSONSerializationTest, BracketsInTextsAreNoNesting) {
    const std::string text = "[\"" + std::string(1000, '[') + "\\\"" + std::string(1000, '{') + "\\\\\"]";
    EXPECT_TRUE(JSONSerialization::object(text));
}

} // namespace brindle
