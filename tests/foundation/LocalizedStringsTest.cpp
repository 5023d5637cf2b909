#include "foundation/LocalizedStrings.hpp"

#include "tests/support/TemporaryFolder.hpp"

#include <fstream>
#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

LocalizedStrings::Table table(std::string_view text) {
    const auto parsed = LocalizedStrings::parse(text);
    EXPECT_TRUE(parsed) << parsed.error().line << ": " << parsed.error().message;
    return parsed.value_or(LocalizedStrings::Table());
}

/// The line of a text's first fault.
std::size_t faultLine(std::string_view text) {
    const auto parsed = LocalizedStrings::parse(text);
    EXPECT_FALSE(parsed) << text;
    return parsed ? 0 : parsed.error().line;
}

std::string valueOf(std::string_view text) {
    return table("\"k\" = \"" + std::string(text) + "\";")["k"];
}

TEST(LocalizedStringsTest, ReadsKeysAndTexts) {
    EXPECT_THAT(table("\"a\" = \"A\";\n\"b c\"=\"B\nC\";"), UnorderedElementsAre(Pair("a", "A"), Pair("b c", "B\nC")));
    EXPECT_THAT(table(""), IsEmpty());
    EXPECT_THAT(table("\xEF\xBB\xBF\"a\" = \"\xC3\xA4\";"), UnorderedElementsAre(Pair("a", "\xC3\xA4")));
}

TEST(LocalizedStringsTest, PassesOverCommentsAndSpace) {
    EXPECT_THAT(table("/* one\n * two */ \"a\" // key\r\n\t= /**/ \"/* A // */\" ; // end"), UnorderedElementsAre(Pair("a", "/* A // */")));
    EXPECT_THAT(table("// only"), IsEmpty());
}

TEST(LocalizedStringsTest, TheLastTextOfAKeyCounts) {
    EXPECT_THAT(table("\"a\" = \"1\"; \"a\" = \"2\";"), UnorderedElementsAre(Pair("a", "2")));
}

TEST(LocalizedStringsTest, KnowsTheEscapes) {
    EXPECT_EQ(valueOf(R"(\"\\\n\r\t)"), "\"\\\n\r\t");
    EXPECT_EQ(valueOf(R"(\u0041\U00e4\u20AC)"), "A\u00e4\u20ac");
    EXPECT_EQ(valueOf(R"(\ud83d\uDE00)"), "\U0001F600");
    EXPECT_THAT(table(R"("\"k\"" = "";)"), UnorderedElementsAre(Pair("\"k\"", "")));
}

TEST(LocalizedStringsTest, AnUnknownEscapeIsAFault) {
    for (const char* text :
        {R"(\x)", R"(\u)", R"(\u12)", R"(\u12g4)", R"(\ud83d)", R"(\ud83dx)", R"(\ud83d\n)", R"(\ud83d\u0041)", R"(\ude00)"})
        EXPECT_EQ(faultLine("\n\"k\" = \"" + std::string(text) + "\";"), 2U) << text;
}

TEST(LocalizedStringsTest, AFaultIsToldWithItsLine) {
    EXPECT_EQ(faultLine("\"a\" = \"A\"\n\"b\" = \"B\";"), 2U);
    EXPECT_EQ(faultLine("\"a\"\n\"A\";"), 2U);
    EXPECT_EQ(faultLine("\"a\" = \"A\";\n\n\"b\" = B;"), 3U);
    EXPECT_EQ(faultLine("a = \"A\";"), 1U);
    EXPECT_EQ(faultLine("\"a\" = \"A\""), 1U);
    EXPECT_EQ(faultLine("\"a\" =\n\"A;\n\n"), 2U);
    EXPECT_EQ(faultLine("\"a\" = \"A\";\n\"b\" = \"B\\"), 2U);
    EXPECT_EQ(faultLine("\"a\" = \"A\";\n/* b\n"), 2U);
    EXPECT_EQ(faultLine("\"a\";"), 1U);
}

TEST(LocalizedStringsTest, WhatIsNotInUTF8IsAFaultOfTheWholeFile) {
    EXPECT_EQ(faultLine("\"a\" = \"\xE4\";"), 0U);
}

TEST(LocalizedStringsTest, NamesTheTablesOfALanguageFromTheNearestOn) {
    EXPECT_THAT(LocalizedStrings::tableNames("zh_CN"), ElementsAre("zh-Hans-CN", "zh-Hans", "zh-CN", "zh"));
    EXPECT_THAT(LocalizedStrings::tableNames("zh-TW"), ElementsAre("zh-Hant-TW", "zh-Hant", "zh-TW", "zh"));
    EXPECT_THAT(LocalizedStrings::tableNames("de"), ElementsAre("de-Latn-DE", "de-Latn", "de-DE", "de"));
    EXPECT_THAT(LocalizedStrings::tableNames("de_AT.UTF-8"), ElementsAre("de-Latn-AT", "de-Latn", "de-AT", "de"));
    EXPECT_THAT(LocalizedStrings::tableNames("xx"), ElementsAre("xx"));
}

class LocalizedStringsLoadTest : public ::testing::Test {
protected:
    LocalizedStringsLoadTest() {
        add("en", "\"a\" = \"English a\"; \"b\" = \"English b\";");
        add("de", "\"a\" = \"Deutsch a\";");
        add("zh-Hans", "\"a\" = \"Hans a\";");
        add("zh-Hant", "\"a\" = \"Hant a\";");
    }
    ~LocalizedStringsLoadTest() override { LocalizedStrings::set({}); }

    void add(const std::string& name, const std::string& text) const { std::ofstream(folder / (name + ".strings")) << text; }
    std::string textOf(const std::string& key, const std::vector<std::string>& languages) const {
        EXPECT_TRUE(LocalizedStrings::load(folder.path(), languages));
        return localized(key);
    }

    const TemporaryFolder folder;
};

TEST_F(LocalizedStringsLoadTest, AKeyWithoutATextIsItsOwnText) {
    EXPECT_EQ(localized("Saved Articles"), "Saved Articles");
    EXPECT_EQ(textOf("c", {"de"}), "c");
}

TEST_F(LocalizedStringsLoadTest, TakesTheFirstLanguageThatHasATable) {
    EXPECT_EQ(textOf("a", {"de_AT"}), "Deutsch a");
    EXPECT_EQ(textOf("a", {"fr", "de", "en"}), "Deutsch a");
    EXPECT_EQ(textOf("a", {"zh_CN"}), "Hans a");
    EXPECT_EQ(textOf("a", {"zh-Hans"}), "Hans a");
    EXPECT_EQ(textOf("a", {"zh_TW"}), "Hant a");
}

TEST_F(LocalizedStringsLoadTest, FallsBackToEnglish) {
    EXPECT_EQ(textOf("a", {"fr"}), "English a");
    EXPECT_EQ(textOf("a", {}), "English a");
    EXPECT_EQ(textOf("b", {"de"}), "English b");
}

TEST_F(LocalizedStringsLoadTest, NeedsNoEnglishTable) {
    std::filesystem::remove(folder / "en.strings");
    EXPECT_EQ(textOf("a", {"de"}), "Deutsch a");
    EXPECT_EQ(textOf("b", {"de"}), "b");
}

TEST_F(LocalizedStringsLoadTest, KeepsItsTableWhenLoadingFails) {
    EXPECT_EQ(textOf("a", {"de"}), "Deutsch a");
    add("fr", "\"a\" = \"Fran\xC3\xA7"
              "ais a\";\n\"b\"");
    const auto loaded = LocalizedStrings::load(folder.path(), {"fr"});
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.error().line, 2U);
    EXPECT_NE(loaded.error().message.find("fr.strings"), std::string::npos) << loaded.error().message;
    EXPECT_FALSE(LocalizedStrings::load(folder / "none", {"de"}));
    EXPECT_EQ(localized("a"), "Deutsch a");
}

TEST_F(LocalizedStringsLoadTest, AFaultyEnglishTableIsAFailure) {
    add("en", "?");
    const auto loaded = LocalizedStrings::load(folder.path(), {"de"});
    ASSERT_FALSE(loaded);
    EXPECT_NE(loaded.error().message.find("en.strings"), std::string::npos);
}

} // namespace
} // namespace brindle
