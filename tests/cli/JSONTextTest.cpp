#include "cli/JSONText.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindle {

using JSON = nlohmann::ordered_json;

TEST(JSONTextTest, WritesTwoBlanksForEachLevelAndKeepsTheOrderOfKeys) {
    const JSON value = JSON::parse(R"({"z":[1,{"a":"\u00e9\n"},[],{}],"b":null,"c":true})");
    EXPECT_EQ(jsonText(value), value.dump(2) + '\n');
    EXPECT_EQ(jsonLine(value), value.dump() + '\n');
}

TEST(JSONTextTest, WritesAScalarAndAnEmptyArray) {
    EXPECT_EQ(jsonText(JSON("x")), "\"x\"\n");
    EXPECT_EQ(jsonText(JSON::array()), "[]\n");
}

TEST(JSONTextTest, ReplacesMalformedText) {
    EXPECT_EQ(jsonText(JSON("a\xff")), "\"a\xef\xbf\xbd\"\n");
}

namespace {

/// Arrays, each in the one before it.
JSON nested(std::size_t depth) {
    JSON value = JSON::array();
    for (std::size_t i = 1; i < depth; ++i) {
        JSON outer = JSON::array();
        outer.push_back(std::move(value));
        value = std::move(outer);
    }
    return value;
}

} // namespace

TEST(JSONTextTest, WritesWhatIsNestedDeeply) {
    constexpr std::size_t depth = 20'000;
    const std::string text = jsonText(nested(depth));
    EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '[')), depth);
    EXPECT_LT(text.size(), 10'000'000U);
}

TEST(JSONTextTest, IndentsNoFurtherThanTheLevel64) {
    const std::string indentation(128, ' ');
    EXPECT_EQ(jsonText(nested(65)), nested(65).dump(2) + '\n');
    EXPECT_NE(jsonText(nested(70)).find('\n' + indentation + "[]\n"), std::string::npos);
    EXPECT_EQ(jsonText(nested(70)).find('\n' + indentation + ' '), std::string::npos);
}

} // namespace brindle
