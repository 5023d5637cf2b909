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

TEST(JSONTextTest, WritesWhatIsNestedDeeply) {
    constexpr std::size_t depth = 3000;
    JSON value = JSON::array();
    for (std::size_t i = 1; i < depth; ++i) {
        JSON outer = JSON::array();
        outer.push_back(std::move(value));
        value = std::move(outer);
    }
    const std::string text = jsonText(value);
    EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '[')), depth);
}

} // namespace brindle
