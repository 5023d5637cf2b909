#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Text.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"

#include <gtest/gtest.h>
#include <random>
#include <regex>

namespace brindle {
namespace {

using testsupport::CapturedConsole;

std::string address(const std::optional<URL>& base, std::string_view text) {
    const std::optional<URL> url = sanitizedURL(base, text);
    return url ? url->absoluteString() : "none";
}

void replaceAll(std::string& text, const std::string& part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.erase(at, part.size());
}

/// What `removingHTMLTags` does, word for word: one pass over the text for each tag of each match. For ASCII, where all lengths agree.
std::string removingTagsOneByOne(const std::string& text) {
    static const std::regex emptyElement("<[^/]*/>");
    static const std::regex pair("((<[^>]*>)([^<]*)(<[^>]*>))");
    std::string result = std::regex_replace(text, emptyElement, "");
    for (std::sregex_iterator match(text.begin(), text.end(), pair), end; match != end; ++match) {
        replaceAll(result, (*match)[2]);
        replaceAll(result, (*match)[4]);
    }
    return result;
}

std::string repeated(std::string_view part, std::size_t size) {
    std::string text;
    while (text.size() < size)
        text += part;
    return text;
}

constexpr std::size_t flood = 1 << 20;

TEST(SanitizedURLTest, TrimsTheText) {
    EXPECT_EQ(address(std::nullopt, " \n http://a/b\t"), "http://a/b");
}

TEST(SanitizedURLTest, ResolvesARelativeTextAgainstTheBase) {
    const std::optional<URL> base = URL::make("http://a/b/c/d");
    EXPECT_EQ(address(base, "../x"), "http://a/b/x");
    EXPECT_EQ(address(base, "/x"), "http://a/x");
    EXPECT_EQ(address(base, "x"), "http://a/b/c/x");
    EXPECT_EQ(address(base, "//x/y"), "http://x/y");
}

TEST(SanitizedURLTest, IgnoresTheBaseForATextWithAScheme) {
    EXPECT_EQ(address(URL::make("http://a/b"), "mailto:x"), "mailto:x");
}

TEST(SanitizedURLTest, LeavesARelativeTextWithoutABaseAsItIsAndSaysSo) {
    const CapturedConsole console;
    EXPECT_EQ(address(std::nullopt, " ../x"), "../x");
    EXPECT_EQ(address(std::nullopt, "//x/y"), "//x/y");
    EXPECT_EQ(console.lines, std::vector<std::string>(2, "Can't sanatize URL. Base URL is missing!"));
}

TEST(SanitizedURLTest, MakesNoneOfATextThatIsNoURL) {
    const CapturedConsole console;
    EXPECT_EQ(address(std::nullopt, ""), "none");
    EXPECT_EQ(address(std::nullopt, "a b"), "none");
    EXPECT_EQ(address(URL::make("http://a/"), "a b"), "none");
    EXPECT_EQ(address(std::nullopt, "http://\u00E4/"), "none");
    EXPECT_TRUE(console.lines.empty());
}

TEST(RemovingHTMLTagsTest, RemovesPairsAndEmptyElements) {
    EXPECT_EQ(removingHTMLTags(""), "");
    EXPECT_EQ(removingHTMLTags("a"), "a");
    EXPECT_EQ(removingHTMLTags("<p>a</p>"), "a");
    EXPECT_EQ(removingHTMLTags("a<br/>b"), "ab");
    EXPECT_EQ(removingHTMLTags("a<br />b<hr\n/>c"), "abc");
}

TEST(RemovingHTMLTagsTest, CrossesTagsWithoutASlashOnItsWayToTheEndOfAnEmptyElement) {
    EXPECT_EQ(removingHTMLTags("a<b>c<br/>d"), "ad");
    EXPECT_EQ(removingHTMLTags("1 < 2 / 3 <br/>4"), "1 < 2 / 3 4");
}

TEST(RemovingHTMLTagsTest, KeepsTheContentsOfScripts) {
    EXPECT_EQ(removingHTMLTags("<script>x</script>"), "x");
    EXPECT_EQ(removingHTMLTags("<style>x</style>"), "x");
}

TEST(RemovingHTMLTagsTest, RemovesATagOfAPairEverywhere) {
    EXPECT_EQ(removingHTMLTags("<i>a<i>b</i>c<i>"), "abc");
}

TEST(RemovingHTMLTagsTest, KeepsATagThatNothingPairsUp) {
    EXPECT_EQ(removingHTMLTags("<p>a"), "<p>a");
    EXPECT_EQ(removingHTMLTags("<p>a</p>b<i>c"), "ab<i>c");
    EXPECT_EQ(removingHTMLTags("a < b"), "a < b");
}

TEST(RemovingHTMLTagsTest, DecodesNoEntity) {
    EXPECT_EQ(removingHTMLTags("<p>&lt;b&gt;</p>"), "&lt;b&gt;");
}

TEST(RemovingHTMLTagsTest, DoesNotSearchTheTailBehindCharactersOfSeveralUnits) {
    // Two users' characters of two UTF-16 units each: the search ends two units before the end.
    EXPECT_EQ(removingHTMLTags("\U0001F600\U0001F600<p>a</p>"), "\U0001F600\U0001F600<p>a</p>");
    EXPECT_EQ(removingHTMLTags("\U0001F600\U0001F600<p>a</p>12"), "\U0001F600\U0001F600a12");
    EXPECT_EQ(removingHTMLTags("e\u0301<p>a</p>"), "e\u0301<p>a</p>");
}

TEST(RemovingHTMLTagsTest, RemovesATagThatARemovalFormedOnlyWhenItsTurnIsStillToCome) {
    // The "<i>" that the removal of "<b>" forms was not there when "<i>" had its turn.
    EXPECT_EQ(removingHTMLTags("<i>x</i><b>y</b>z<<b>i>"), removingTagsOneByOne("<i>x</i><b>y</b>z<<b>i>"));
    EXPECT_EQ(removingHTMLTags("<i>x</i><b>y</b>z<<b>i>"), "xyz<i>");
    EXPECT_EQ(removingHTMLTags("<b>y</b><i>x</i>z<<b>i>"), "yxz");
}

TEST(RemovingHTMLTagsTest, DoesWhatRemovingOneByOneDoes) {
    std::mt19937 random(20200601);
    const std::vector<std::vector<std::string_view>> alphabets = {
        {"<", ">", "a", "b"}, {"<", "<", ">", "/", "a", "b"}, {"<a>", "<b>", "</a>", "<", ">", "a", "<<a>b>", "x"}};
    for (int round = 0; round < 30000; ++round) {
        const auto& alphabet = alphabets[static_cast<std::size_t>(round) % alphabets.size()];
        std::string text;
        for (std::size_t count = random() % 40; count > 0; --count)
            text += alphabet[random() % alphabet.size()];
        ASSERT_EQ(removingHTMLTags(text), removingTagsOneByOne(text)) << text;
    }
}

TEST(RemovingHTMLTagsTest, BearsFloods) {
    EXPECT_EQ(removingHTMLTags(repeated("<", flood)).size(), flood);
    EXPECT_EQ(removingHTMLTags(repeated("<p></p>", flood)), "");
    EXPECT_EQ(removingHTMLTags(repeated("<a", flood)).size(), flood);
    EXPECT_EQ(removingHTMLTags(repeated("<br/>", flood)), "");
    EXPECT_EQ(removingHTMLTags(repeated("<b>", flood)), "");
}

TEST(RemovingHTMLTagsTest, BearsAFloodOfTagsThatAllDiffer) {
    std::string text;
    std::string expected;
    for (int i = 0; text.size() < flood; ++i) {
        const std::string name = std::to_string(i);
        text += "<<" + name + ">" + name + "</" + name + ">";
        expected += name;
    }
    EXPECT_EQ(removingHTMLTags(text), expected);
}

TEST(RemovingHTMLTagsTest, BearsTagsThatFormEachOtherTurnByTurn) {
    constexpr std::size_t depth = 65536;
    const std::string nested = repeated("<", depth) + repeated("b>", 2 * depth);
    EXPECT_EQ(removingHTMLTags("<b>x</b>" + nested).size(), 1 + nested.size() - 3);
    EXPECT_EQ(removingHTMLTags(repeated("<b>x</b>", 8 * depth) + nested), repeated("x", depth));
}

TEST(RemovingHTMLEntitiesTest, DecodesNamesAndNumbers) {
    EXPECT_EQ(stringByRemovingHTMLEntities("&amp;"), "&");
    EXPECT_EQ(stringByRemovingHTMLEntities("a&lt;b&gt;c"), "a<b>c");
    EXPECT_EQ(stringByRemovingHTMLEntities("&#65;&#x41;&#X41;"), "AAA");
    EXPECT_EQ(stringByRemovingHTMLEntities("&#228;&#x20AC;&#x1F600;"), "\u00E4\u20AC\U0001F600");
    EXPECT_EQ(stringByRemovingHTMLEntities("&nGt;"), "\u226B\u20D2");
}

TEST(RemovingHTMLEntitiesTest, KeepsWhatIsNoReference) {
    for (const std::string_view text : {"", "&", "&amp", "a & b; c", "&bogus;", "&AMP1;", "&;", "&#;", "&#x;", "&#12a;", "&#xG;"})
        EXPECT_EQ(stringByRemovingHTMLEntities(text), text);
}

TEST(RemovingHTMLEntitiesTest, KeepsNumbersThatAreNoCharacter) {
    for (const std::string_view text : {"&#xD800;", "&#xDFFF;", "&#x110000;", "&#4294967296;", "&#99999999999999999999;", "&#-1;"})
        EXPECT_EQ(stringByRemovingHTMLEntities(text), text);
    EXPECT_EQ(stringByRemovingHTMLEntities("&#xD7FF;&#xE000;&#x10FFFF;"), "\uD7FF\uE000\U0010FFFF");
}

TEST(RemovingHTMLEntitiesTest, BeginsAgainAtALaterAmpersand) {
    EXPECT_EQ(stringByRemovingHTMLEntities("&&amp;"), "&&");
    EXPECT_EQ(stringByRemovingHTMLEntities("&a &b &lt;"), "&a &b <");
}

TEST(RemovingHTMLEntitiesTest, DecodesOnce) {
    EXPECT_EQ(stringByRemovingHTMLEntities("&amp;lt;"), "&lt;");
}

TEST(RemovingHTMLEntitiesTest, BearsFloods) {
    const std::string ampersands = repeated("&", flood);
    EXPECT_EQ(stringByRemovingHTMLEntities(ampersands), ampersands);
    EXPECT_EQ(stringByRemovingHTMLEntities(ampersands + ";"), ampersands + ";");
    EXPECT_EQ(stringByRemovingHTMLEntities(repeated("&amp;", flood)).size(), (flood + 4) / 5);
    EXPECT_EQ(stringByRemovingHTMLEntities(repeated("&;", flood)).size(), flood);
}

} // namespace
} // namespace brindle
