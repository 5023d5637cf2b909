#include <gtest/gtest.h>
#include <string>

#include "html/AbsoluteURL.hpp"
#include "html/ByteBlock.hpp"
#include "html/InputStream.hpp"
#include "html/Utf8.hpp"
#include "html/XmlName.hpp"

namespace brindle::html {

TEST(InputStreamTest, MakesEveryLineEndALineFeed) {
    EXPECT_EQ(InputStream("a\r\nb\rc\nd\r\r\ne\r").text(), "a\nb\nc\nd\n\ne\n");
    EXPECT_EQ(InputStream("\r").text(), "\n");
    EXPECT_EQ(InputStream("").text(), "");
}

TEST(InputStreamTest, DropsOneByteOrderMarkAtTheStart) {
    EXPECT_EQ(InputStream("\xEF\xBB\xBF\xEF\xBB\xBFx\xEF\xBB\xBF").text(), "\xEF\xBB\xBFx\xEF\xBB\xBF");
}

TEST(InputStreamTest, ReportsCharactersThatShouldNotBeThere) {
    ParseErrorList errors(10);
    InputStream("a\x01\n\xEF\xBF\xBE\xED\xA0\x80\x7F\t\xC2\x80").reportErrors(errors);
    const auto located = std::move(errors).located("a\x01\n\xEF\xBF\xBE\xED\xA0\x80\x7F\t\xC2\x80");
    ASSERT_EQ(located.size(), 5U);
    EXPECT_EQ(located[0].name(), "control-character-in-input-stream");
    EXPECT_EQ(located[1].name(), "noncharacter-in-input-stream");
    EXPECT_EQ(located[2].name(), "surrogate-in-input-stream");
    EXPECT_EQ(located[3].name(), "control-character-in-input-stream");
    EXPECT_EQ(located[4].name(), "control-character-in-input-stream");
    EXPECT_EQ(located[4].line, 2U);
    EXPECT_EQ(located[4].column, 5U);
}

TEST(ByteBlockTest, FindsTheFirstOfSeveralBytesAtEveryPlace) {
    for (std::size_t length = 0; length < 50; ++length) {
        const std::string plain(length, 'x');
        EXPECT_EQ((findAny<'<', '&'>(plain.data(), plain.data() + length)), plain.data() + length);
        for (std::size_t at = 0; at < length; ++at) {
            std::string text = plain;
            text[at] = '&';
            text[length - 1] = at + 1 == length ? '&' : '<';
            EXPECT_EQ((findAny<'<', '&'>(text.data(), text.data() + length)), text.data() + at);
        }
    }
}

TEST(Utf8Test, ReadsWhatItWrites) {
    for (const char32_t value : {U'\0', U'a', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFD', U'\x10000', U'\x10FFFF'}) {
        std::string text;
        appendUtf8(text, value);
        EXPECT_EQ(decodeUtf8(text).value, value);
        EXPECT_EQ(decodeUtf8(text).length, text.size());
    }
}

TEST(Utf8Test, ReadsAMalformedSequenceAsOneByte) {
    for (const std::string text : {"\x80", "\xC0\x80", "\xC3", "\xC3(", "\xE2\x82", "\xE0\x80\x80", "\xF4\x90\x80\x80", "\xFF"}) {
        EXPECT_EQ(decodeUtf8(text).value, U'\xFFFD');
        EXPECT_EQ(decodeUtf8(text).length, 1U);
    }
}

TEST(XmlNameTest, TellsNamesFromOtherTexts) {
    for (const std::string name : {"a", "_", ":a", "content:encoded", "a-1.b", "\xC3\xA9t\xC3\xA9", "a\xC2\xB7", "\xF0\x90\x80\x80"}) {
        EXPECT_TRUE(isXmlName(name)) << name;
    }
    for (const std::string text : {"", "1a", "-a", ".a", "a b", "a\"", "a$", "\xC2\xB7", "\xC3\x97", "a\xC3\x97", "a\xFF", "a&b"}) {
        EXPECT_FALSE(isXmlName(text)) << text;
    }
}

TEST(AbsoluteURLTest, ResolvesTheExamplesOfTheRfc) {
    const std::string base = "http://a/b/c/d;p?q";
    const std::pair<const char*, const char*> examples[] = {{"g:h", "g:h"}, {"g", "http://a/b/c/g"}, {"./g", "http://a/b/c/g"},
        {"g/", "http://a/b/c/g/"}, {"/g", "http://a/g"}, {"//g", "http://g"}, {"?y", "http://a/b/c/d;p?y"}, {"g?y", "http://a/b/c/g?y"},
        {"#s", "http://a/b/c/d;p?q#s"}, {"g#s", "http://a/b/c/g#s"}, {"g?y#s", "http://a/b/c/g?y#s"}, {";x", "http://a/b/c/;x"},
        {"g;x", "http://a/b/c/g;x"}, {"g;x?y#s", "http://a/b/c/g;x?y#s"}, {"", "http://a/b/c/d;p?q"}, {".", "http://a/b/c/"},
        {"./", "http://a/b/c/"}, {"..", "http://a/b/"}, {"../", "http://a/b/"}, {"../g", "http://a/b/g"}, {"../..", "http://a/"},
        {"../../", "http://a/"}, {"../../g", "http://a/g"}, {"../../../g", "http://a/g"}, {"../../../../g", "http://a/g"},
        {"/./g", "http://a/g"}, {"/../g", "http://a/g"}, {"g.", "http://a/b/c/g."}, {".g", "http://a/b/c/.g"}, {"g..", "http://a/b/c/g.."},
        {"..g", "http://a/b/c/..g"}, {"./../g", "http://a/b/g"}, {"./g/.", "http://a/b/c/g/"}, {"g/./h", "http://a/b/c/g/h"},
        {"g/../h", "http://a/b/c/h"}, {"g;x=1/./y", "http://a/b/c/g;x=1/y"}, {"g;x=1/../y", "http://a/b/c/y"},
        {"g?y/./x", "http://a/b/c/g?y/./x"}, {"g?y/../x", "http://a/b/c/g?y/../x"}, {"g#s/./x", "http://a/b/c/g#s/./x"},
        {"g#s/../x", "http://a/b/c/g#s/../x"}, {"http:g", "http:g"}};
    for (const auto& [reference, expected] : examples) {
        EXPECT_EQ(absoluteURL(base, reference), expected) << reference;
    }
}

TEST(AbsoluteURLTest, PutsASlashBetweenABareHostAndAPath) {
    EXPECT_EQ(absoluteURL("http://example.org", "a"), "http://example.org/a");
}

TEST(AbsoluteURLTest, NeedsASchemeFromSomewhere) {
    EXPECT_EQ(absoluteURL("", "a"), std::nullopt);
    EXPECT_EQ(absoluteURL("/b", "a"), std::nullopt);
    EXPECT_EQ(absoluteURL("", "http://a/b"), "http://a/b");
}

} // namespace brindle::html
