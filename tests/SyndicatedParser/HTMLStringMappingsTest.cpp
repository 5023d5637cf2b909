#include "SyndicatedParser/HTMLStringMappings.hpp"
#include "tests/support/Corpus.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace brindle {
namespace {

TEST(HTMLStringMappingsTest, FindsAReplacementByItsExactName) {
    EXPECT_EQ(HTMLStringMappings::text("amp"), "&");
    EXPECT_EQ(HTMLStringMappings::text("nbsp"), "\u00A0");
    EXPECT_EQ(HTMLStringMappings::text("Auml"), "\u00C4");
    EXPECT_EQ(HTMLStringMappings::text("auml"), "\u00E4");
    EXPECT_EQ(HTMLStringMappings::text("Afr"), "\U0001D504");
    EXPECT_EQ(HTMLStringMappings::text("nGt"), "\u226B\u20D2");
}

TEST(HTMLStringMappingsTest, FindsNothingForAnyOtherName) {
    EXPECT_EQ(HTMLStringMappings::text(""), std::nullopt);
    EXPECT_EQ(HTMLStringMappings::text("Nbsp"), std::nullopt);
    EXPECT_EQ(HTMLStringMappings::text("amp;"), std::nullopt);
    EXPECT_EQ(HTMLStringMappings::text("bogus"), std::nullopt);
}

TEST(HTMLStringMappingsTest, HoldsAllNamesOfTheStandard) {
    BRINDLE_REQUIRE_CORPUS(path);
    const auto names = nlohmann::json::parse(testsupport::bytesOf(path / "named-character-references.json"));
    EXPECT_EQ(names.size(), 2125U);
    for (const auto& [name, replacement] : names.items())
        EXPECT_EQ(HTMLStringMappings::text(name), replacement.get<std::string>()) << name;
}

} // namespace
} // namespace brindle
