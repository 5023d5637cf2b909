#include "foundation/Text.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace brindle {

TEST(TextTest, TrimsEveryWhiteSpaceOfUnicodeAtBothEnds) {
    EXPECT_EQ(text::trimmed(" \t\r\n\v\f a b \n"), "a b");
    EXPECT_EQ(text::trimmed("\xC2\xA0\xE2\x80\xA8 a\xC2\x85\xE3\x80\x80"), "a");
    EXPECT_EQ(text::trimmed("\xC2\xA0 \xE2\x80\x83"), "");
    EXPECT_EQ(text::trimmed(""), "");
    EXPECT_EQ(text::trimmed("  "), "");
    EXPECT_EQ(text::trimmed("\xC3\xA9t\xC3\xA9"), "\xC3\xA9t\xC3\xA9");
}

TEST(TextTest, TrimmingKeepsOtherInvisibleCharacters) {
    EXPECT_EQ(text::trimmed("\xE2\x80\x8B"
                            "a"),
        "\xE2\x80\x8B"
        "a");
    EXPECT_EQ(text::trimmed(std::string_view("\0a", 2)), std::string_view("\0a", 2));
}

TEST(TextTest, TrimsIllegalCharactersWhenAsked) {
    EXPECT_EQ(text::trimmedOfIllegalCharacters(std::string_view("\0\x01 a b\x7F\n", 8)), "a b");
    EXPECT_EQ(text::trimmedOfIllegalCharacters("\xEF\xBF\xBE"
                                               "a\xF0\x9F\xBF\xBF\xEF\xB7\x90"),
        "a");
    EXPECT_EQ(text::trimmedOfIllegalCharacters("\xCD\xB8 a"), "a"); // U+0378 is not assigned
    EXPECT_EQ(text::trimmedOfIllegalCharacters("\x01\x02"), "");
}

TEST(TextTest, TrimmingReadsMalformedBytesAsAReplacementCharacter) {
    EXPECT_EQ(text::trimmed(" \xFF "), "\xFF");
    EXPECT_EQ(text::trimmedOfIllegalCharacters("\x80\x80\x80\x80\x80"), "\x80\x80\x80\x80\x80");
}

TEST(TextTest, LowersAllOfUnicodeIndependentOfTheLocale) {
    EXPECT_EQ(text::lowercased("ABC-XYZ"), "abc-xyz");
    EXPECT_EQ(text::lowercased("\xC3\x89T\xC3\x89 I"), "\xC3\xA9t\xC3\xA9 i");
    EXPECT_EQ(text::lowercased("\xCE\xA3\xCE\x91\xCE\xA3"), "\xCF\x83\xCE\xB1\xCF\x82"); // the last sigma of a word has a form of its own
}

TEST(TextTest, LowersOnlyASCIIWhenAsked) {
    EXPECT_EQ(text::lowercasedASCII("AZ[@\xC3\x89"), "az[@\xC3\x89");
}

TEST(TextTest, FoldsCaseAndDiacritics) {
    EXPECT_EQ(text::folded("\xC3\x89mile"), text::folded("emile"));
    EXPECT_EQ(text::folded("E\xCC\x81MILE"), "emile");
    EXPECT_EQ(text::folded("Stra\xC3\x9F"
                           "e"),
        "strasse");
    EXPECT_EQ(text::folded("\xC4\xB0stanbul"), "istanbul");
    EXPECT_NE(text::folded("Caf\xC3\xA9 NOIR").find(text::folded("cafe")), std::string::npos);
}

TEST(TextTest, CountsUserPerceivedCharacters) {
    EXPECT_EQ(text::characterCount(""), 0U);
    EXPECT_EQ(text::characterCount("abc"), 3U);
    EXPECT_EQ(text::characterCount("\xC3\xA9\xE6\xBC\xA2"), 2U);
    EXPECT_EQ(text::characterCount("e\xCC\x81"), 1U);
    EXPECT_EQ(text::characterCount("a\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7z"), 3U);
    EXPECT_EQ(text::characterCount("\xF0\x9F\x87\xA9\xF0\x9F\x87\xAA\xF0\x9F\x87\xAB\xF0\x9F\x87\xB7"), 2U);
}

TEST(TextTest, CountsCarriageReturnWithLineFeedAsOne) {
    EXPECT_EQ(text::characterCount("\r\n"), 1U);
    EXPECT_EQ(text::characterCount("a\r\n\r\nb\n\r"), 6U);
    EXPECT_EQ(text::characterCount("e\xCC\x81\r\n"), 2U);
}

TEST(TextTest, TakesTheFirstCharacters) {
    EXPECT_EQ(text::prefix("abc", 2), "ab");
    EXPECT_EQ(text::prefix("abc", 3), "abc");
    EXPECT_EQ(text::prefix("abc", 4), "abc");
    EXPECT_EQ(text::prefix("abc", 0), "");
    EXPECT_EQ(text::prefix("", 1), "");
    EXPECT_EQ(text::prefix("\u00e9\u00e8x", 2), "\u00e9\u00e8");
    EXPECT_EQ(text::prefix("a\r\nb", 2), "a\r\n");
    EXPECT_EQ(text::prefix("xe\u0301y", 2), "xe\u0301");
    EXPECT_EQ(text::prefix("e\u0301", 2), "e\u0301");
    EXPECT_EQ(text::prefix("e\u0301e\u0301", 0), "");
}

TEST(TextTest, FindsPositionsCountedInUTF16) {
    const std::string_view mixed = "a\xC3\xA9\xF0\x9F\x98\x80z";
    EXPECT_EQ(text::offsetOfUTF16(mixed, 0), 0U);
    EXPECT_EQ(text::offsetOfUTF16(mixed, 2), 3U);
    EXPECT_EQ(text::offsetOfUTF16(mixed, 3), 3U);
    EXPECT_EQ(text::offsetOfUTF16(mixed, 4), 7U);
    EXPECT_EQ(text::offsetOfUTF16(mixed, 5), 8U);
    EXPECT_EQ(text::offsetOfUTF16(mixed, 99), 8U);
}

TEST(TextTest, ReadsAWholeTextAsAnInteger) {
    EXPECT_EQ(text::integer("42"), 42);
    EXPECT_EQ(text::integer("+7"), 7);
    EXPECT_EQ(text::integer("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(text::integer("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

TEST(TextTest, RefusesWhatIsNotWhollyAnInteger) {
    for (const std::string_view bad :
        {"", "+", "-", "+-1", " 1", "1 ", "1a", "0x1", "1.0", "9223372036854775808", "-9223372036854775809", "99999999999999999999999"})
        EXPECT_EQ(text::integer(bad), std::nullopt) << bad;
}

TEST(TextTest, ReadsTheIntegerAtTheStartLeniently) {
    EXPECT_EQ(text::lenientInteger(" \n-12px"), -12);
    EXPECT_EQ(text::lenientInteger("px"), 0);
    EXPECT_EQ(text::lenientInteger(""), 0);
    EXPECT_EQ(text::lenientInteger("99999999999999999999999"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(text::lenientInteger("-99999999999999999999999"), std::numeric_limits<std::int64_t>::min());
}

} // namespace brindle
