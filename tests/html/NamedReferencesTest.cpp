#include "html/NamedReferences.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/Corpus.hpp"

namespace brindle::html {

TEST(NamedReferencesTest, ResolvesANameWithoutItsSemicolon) {
    EXPECT_EQ(namedReference("nbsp"), "\xC2\xA0");
    EXPECT_EQ(namedReference("amp"), "&");
    EXPECT_EQ(namedReference("AMP"), "&");
    EXPECT_EQ(namedReference("NotEqualTilde"), "\xE2\x89\x82\xCC\xB8");
}

TEST(NamedReferencesTest, KnowsNoOtherNames) {
    EXPECT_EQ(namedReference(""), std::nullopt);
    EXPECT_EQ(namedReference("nosuch"), std::nullopt);
    EXPECT_EQ(namedReference("Nbsp"), std::nullopt);
    EXPECT_EQ(namedReference("nbsp;"), std::nullopt);
    EXPECT_EQ(namedReference("a"), std::nullopt);
    EXPECT_EQ(namedReference("zzzzzz"), std::nullopt);
    EXPECT_EQ(namedReference("\xFF"), std::nullopt);
}

TEST(NamedReferencesTest, MatchesTheLongestName) {
    EXPECT_EQ(longestNamedReference("notit;").length, 3U);
    EXPECT_EQ(longestNamedReference("notin;").length, 6U);
    EXPECT_EQ(longestNamedReference("notin;").value, "\xE2\x88\x89");
    EXPECT_EQ(longestNamedReference("nosuch;").length, 0U);
    EXPECT_EQ(longestNamedReference("").length, 0U);
}

TEST(NamedReferencesTest, HoldsTheWholeTableOfTheStandard) {
    BRINDLE_REQUIRE_CORPUS(path);
    const auto table = nlohmann::json::parse(testsupport::bytesOf(path / "named-character-references.json"), nullptr, false);
    ASSERT_EQ(table.size(), 2125U);
    for (const auto& [name, value] : table.items()) {
        EXPECT_EQ(namedReference(name), value.get<std::string>()) << name;
    }
}

} // namespace brindle::html
