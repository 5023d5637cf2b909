#include "foundation/StringEncoding.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace brindle {

TEST(StringEncodingTest, NamesAreThoseOfTheRegistry) {
    EXPECT_EQ(name(StringEncoding::utf8), "utf-8");
    EXPECT_EQ(name(StringEncoding::isoLatin1), "iso-8859-1");
}

TEST(StringEncodingTest, TellsEachMalformedSequenceAtEachPlace) {
    const std::vector<std::string> malformed = {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xED\xA0\x80",
        "\xED\xBF\xBF", "\xE2\x82", "\xE2(\xA1", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF0\x9F\x98", "\xFF",
        "\xFE"};
    for (const std::string& bytes : malformed) {
        for (std::size_t before = 0; before < 40; ++before) {
            EXPECT_FALSE(isValidUTF8(std::string(before, 'a') + bytes)) << before;
            EXPECT_FALSE(isValidUTF8(std::string(before, 'a') + bytes + std::string(40, 'b'))) << before;
        }
    }
}

TEST(StringEncodingTest, TakesTheFirstAndLastCharacterOfEachSize) {
    const std::vector<std::string> valid = {"", std::string(1, '\0'), "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
        "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"};
    for (const std::string& bytes : valid) {
        for (std::size_t before = 0; before < 40; ++before)
            EXPECT_TRUE(isValidUTF8(std::string(before, 'a') + bytes + bytes + "b")) << before;
    }
}

TEST(StringEncodingTest, DecodesUTF8AsItStandsOrNotAtAll) {
    EXPECT_EQ(decode("na\xC3\xAFve", StringEncoding::utf8), "na\xC3\xAFve");
    EXPECT_EQ(decode("na\xEFve", StringEncoding::utf8), std::nullopt);
}

TEST(StringEncodingTest, DecodesEveryByteOfLatin1AndBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    const std::optional<std::string> text = decode(bytes, StringEncoding::isoLatin1);
    ASSERT_TRUE(text);
    EXPECT_TRUE(isValidUTF8(*text));
    EXPECT_EQ(text->size(), 128U + 2 * 128);
    EXPECT_EQ(encode(*text, StringEncoding::isoLatin1), bytes);
}

TEST(StringEncodingTest, EncodesNothingWhenACharacterHasNoPlace) {
    EXPECT_EQ(encode("caf\xC3\xA9", StringEncoding::isoLatin1), "caf\xE9");
    EXPECT_EQ(encode("\xE2\x80\x99", StringEncoding::isoLatin1), std::nullopt);
    EXPECT_EQ(encode("\xE2\x80\x99", StringEncoding::utf8), "\xE2\x80\x99");
}

TEST(StringEncodingTest, WritesReferencesForCharactersWithoutPlaceInMarkup) {
    EXPECT_EQ(encodeMarkup("it\xE2\x80\x99s caf\xC3\xA9 \xF0\x9F\x98\x80!", StringEncoding::isoLatin1), "it&#8217;s caf\xE9 &#128512;!");
    EXPECT_EQ(encodeMarkup("it\xE2\x80\x99s", StringEncoding::utf8), "it\xE2\x80\x99s");
}

} // namespace brindle
