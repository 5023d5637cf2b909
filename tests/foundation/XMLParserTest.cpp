#include "foundation/XMLParser.hpp"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace brindle {

namespace {

/// Writes down each event; adjoining runs of text are one.
class Recorder : public XMLParserDelegate {
public:
    void parserDidStartDocument() override { log += "{"; }
    void parserDidEndDocument() override {
        flush();
        log += "}";
    }
    void didStartElement(std::string_view name, const XMLAttributes& attributes) override {
        flush();
        log.append("<").append(name);
        for (const auto& [key, value] : attributes)
            log.append(" ").append(key).append("=[").append(value).append("]");
        log += ">";
    }
    void didEndElement(std::string_view name) override {
        flush();
        log.append("</").append(name).append(">");
    }
    void foundCharacters(std::string_view text) override { _text.append(text); }
    void foundCDATA(std::string_view block) override {
        flush();
        log.append("C(").append(block).append(")");
    }

    std::string log;

private:
    void flush() {
        log += _text;
        _text.clear();
    }

    std::string _text;
};

std::optional<std::string_view> reference(std::string_view name) {
    static const std::map<std::string, std::string, std::less<>> texts = {
        {"nbsp", "\xC2\xA0"}, {"eacute", "\xC3\xA9"}, {"LT", "<"}, {"AMP", "&"}, {"nvlt", "<\xE2\x83\x92"}, {"excl", "!"}};
    const auto found = texts.find(name);
    return found == texts.end() ? std::nullopt : std::optional<std::string_view>(found->second);
}

/// The events of a document, or "error" with what came before.
std::string events(std::string_view document, StringEncoding encoding = StringEncoding::utf8) {
    Recorder recorder;
    XMLParser parser(document, encoding);
    parser.delegate = &recorder;
    parser.namedReferences = reference;
    const bool parsed = parser.parse();
    EXPECT_EQ(parsed, !parser.parserError());
    return parsed ? recorder.log : "error " + recorder.log;
}

bool isRefused(std::string_view document) {
    return events(document).starts_with("error");
}

XMLParserError errorOf(std::string_view document) {
    Recorder recorder;
    XMLParser parser(document, StringEncoding::utf8);
    parser.delegate = &recorder;
    parser.parse();
    return parser.parserError().value_or(XMLParserError());
}

std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    for (std::size_t time = 0; time < times; ++time)
        result += text;
    return result;
}

} // namespace

TEST(XMLParserTest, ReportsEventsInOrder) {
    EXPECT_EQ(events("<?xml version='1.0'?><!-- c --><a x='1' y=\"2\">t<b/><?p i?>u</a>\n"), "{<a x=[1] y=[2]>t<b></b>u</a>}");
}

TEST(XMLParserTest, KeepsPrefixesOfNames) {
    EXPECT_EQ(events("<dc:a xmlns='u' xmlns:dc='v' dc:b='1'><q:r/></dc:a>"), "{<dc:a xmlns=[u] xmlns:dc=[v] dc:b=[1]><q:r></q:r></dc:a>}");
}

TEST(XMLParserTest, FindsAttributesByName) {
    XMLAttributes attributes;
    attributes.append("a", "1");
    attributes.append("dc:b", "2");
    EXPECT_EQ(attributes["dc:b"], "2");
    EXPECT_EQ(attributes["b"], std::nullopt);
}

TEST(XMLParserTest, DeliversEachCDATASectionWholeAndApart) {
    EXPECT_EQ(events("<a>x<![CDATA[<b>&amp;]]>y<![CDATA[]]><![CDATA[z]]></a>"), "{<a>xC(<b>&amp;)yC()C(z)</a>}");
    const std::string large = repeated("0123456789 <b>\n", 200'000);
    EXPECT_EQ(events("<a><![CDATA[" + large + "]]></a>"), "{<a>C(" + large + ")</a>}");
}

TEST(XMLParserTest, ResolvesReferencesInTextAndAttributes) {
    EXPECT_EQ(events("<a b='&amp;amp; &lt;&gt;&quot;&apos;&#65;&#x42;'>&amp;amp; &lt;&gt;&quot;&apos;&#65;&#x1F600;</a>"),
        "{<a b=[&amp; <>\"'AB]>&amp; <>\"'A\xF0\x9F\x98\x80</a>}");
}

TEST(XMLParserTest, ResolvesNamesThatTheDocumentDoesNotDeclare) {
    EXPECT_EQ(events("<a b='x&nbsp;y&eacute;'>x&nbsp;y&eacute;&nbsp;</a>"), "{<a b=[x\xC2\xA0y\xC3\xA9]>x\xC2\xA0y\xC3\xA9\xC2\xA0</a>}");
    EXPECT_EQ(events("<a b='&LT;&AMP;&nvlt;&excl;'>&LT;&AMP;&nvlt;&excl;</a>"), "{<a b=[<&<\xE2\x83\x92!]><&<\xE2\x83\x92!</a>}");
    EXPECT_EQ(events("<a>&LT;&AMP;lt;<b c='&LT;&AMP;lt;'/></a>"), "{<a><&lt;<b c=[<&lt;]></b></a>}");
}

TEST(XMLParserTest, ResolvesThemAlsoBesideDeclarations) {
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY e '&nbsp;<i t=\"&nbsp;\"/>'>]><a b='&nbsp;'>&e;&nbsp;&LT;</a>"),
        "{<a b=[\xC2\xA0]>\xC2\xA0<i t=[\xC2\xA0]></i>\xC2\xA0<</a>}");
}

TEST(XMLParserTest, AnUnknownReferenceIsAnError) {
    EXPECT_EQ(events("<a>x&bogus;y</a>"), "error {<a>");
    EXPECT_TRUE(isRefused("<a b='&bogus;'/>"));
    EXPECT_TRUE(isRefused("<!DOCTYPE a SYSTEM 'a.dtd'><a>&bogus;</a>"));
    EXPECT_TRUE(isRefused("<a>a & b</a>"));
    EXPECT_TRUE(isRefused("<a>&nbsp</a>"));
}

TEST(XMLParserTest, ResolvesDeclaredEntities) {
    EXPECT_EQ(
        events("<!DOCTYPE a [<!ENTITY e 'E'><!ENTITY e 'second'><!ENTITY f '<b>&e;</b>'><!ENTITY n ''>]><a b='&e;&n;'>&f;&e;&n;&f;</a>"),
        "{<a b=[E]><b>E</b>E<b>E</b></a>}");
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY lt '&#38;#60;'><!ENTITY nbsp 'own'>]><a>&lt;&nbsp;</a>"), "{<a><own</a>}");
    EXPECT_TRUE(isRefused("<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>&e;</a>"));
    EXPECT_TRUE(isRefused("<!DOCTYPE a [<!ENTITY e '<b>'>]><a>&e;</a>"));
}

TEST(XMLParserTest, ReadsNoFile) {
    const std::string path = testing::TempDir() + "brindle-entity.txt";
    std::ofstream(path) << "<!ENTITY e 'secret'>secret";
    const std::string url = "file://" + path;
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY x SYSTEM '" + url + "'>]><a>[&x;]</a>"), "{<a>[]</a>}");
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY x PUBLIC 'p' '" + url + "'>]><a b='&x;'/>").find("secret"), std::string::npos);
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY % x SYSTEM '" + url + "'>%x;]><a>b</a>"), "{<a>b</a>}");
    EXPECT_EQ(events("<!DOCTYPE a SYSTEM '" + url + "'><a>b</a>"), "{<a>b</a>}");
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY x SYSTEM '" + path + "'>]><a>[&x;]</a>"), "{<a>[]</a>}");
    std::remove(path.c_str());
}

TEST(XMLParserTest, LeavesOutForbiddenCharacters) {
    std::string document = "<a_ b='x\x01y'>\x0B"
                           "c\xEF\xBF\xBE\xEF\xBF\xBF\x1F<![CDATA[\x08z]]>\xEF\xBC\x81</a_>_";
    std::replace(document.begin(), document.end(), '_', '\0');
    EXPECT_EQ(events(document), "{<a b=[xy]>cC(z)\xEF\xBC\x81</a>}");
    for (std::size_t before = 0; before < 20; ++before)
        EXPECT_EQ(events("<a>" + std::string(before, '.') + "\x02\xEF\xBF\xBE" + "</a>"), "{<a>" + std::string(before, '.') + "</a>}");
}

TEST(XMLParserTest, LeavesOutReferencesToForbiddenCharacters) {
    EXPECT_EQ(events("<a b='x&#11;y'>&#0;c&#x1f;&#xFFFE;&#xD800;&#99999999999;&#9;d</a>"), "{<a b=[xy]>c\td</a>}");
    EXPECT_EQ(events("<a>&#0;<![CDATA[&#11;]]><!-- <![CDATA[ -->&#0;<?p <![CDATA[ ?>&#0;<![CDATA[&#0;]]></a>"), "{<a>C(&#11;)C(&#0;)</a>}");
    EXPECT_TRUE(isRefused("<a>&#0</a>"));
    EXPECT_TRUE(isRefused("<a>&#;</a>"));
    EXPECT_TRUE(isRefused("<a>&#X41;</a>"));
}

TEST(XMLParserTest, PassesOverWhatStandsBeforeTheDeclaration) {
    EXPECT_EQ(events(" \r\n\t<?xml version='1.0'?><a/>"), "{<a></a>}");
    EXPECT_EQ(events("\xEF\xBB\xBF<?xml version='1.0'?><a/>"), "{<a></a>}");
    EXPECT_EQ(events("\xEF\xBB\xBF\n<a/>"), "{<a></a>}");
}

TEST(XMLParserTest, EndsLinesAndNormalisesAttributesByTheStandard) {
    EXPECT_EQ(events("<a b='1\n2\t3'>x\r\ny\rz</a>"), "{<a b=[1 2 3]>x\ny\nz</a>}");
}

TEST(XMLParserTest, IsStrictInAllElse) {
    for (const std::string_view bad :
        {"", " ", "x", "<a>", "<a></b>", "<a><b></a></b>", "<a/><b/>", "<a/>x", "<a/>&amp;", "<a><!-- -- --></a>", "<a b></a>", "<a b=c/>",
            "<a b='1' b='2'/>", "<a b='<'/>", "<a>]]></a>", "</a>", "<a><![CDATA[x</a>", "<a>\xC3</a>", "<1/>",
            "x<?xml version='1.0'?><a/>", "<a><?xml version='1.0'?></a>", "<a", "<a/", "<!DOCTYPE a", "<?xml version='1.0'"})
        EXPECT_TRUE(isRefused(bad)) << bad;
}

TEST(XMLParserTest, ReadsNoParameterEntity) {
    EXPECT_EQ(events("<!DOCTYPE a [<!ENTITY % p \"<!ENTITY e 'E'>\">%p;%unknown;]><a/>"), "{<a></a>}");
    EXPECT_TRUE(isRefused("<!DOCTYPE a [<!ENTITY % p \"<!ENTITY e 'E'>\">%p;]><a>&e;</a>"));
    // So much that libxml2 would look for more input where it failed inside the entity.
    const std::string padding = "<!--" + std::string(1000, 'x') + "-->";
    EXPECT_EQ(events("<!DOCTYPE a [" + padding + "<!ENTITY % p '&e;'>%p;]><a/>"), "{<a></a>}");
}

TEST(XMLParserTest, DeliversWhatCameBeforeAnError) {
    EXPECT_EQ(events("<a><b>x</b><c></a>"), "error {<a><b>x</b><c>");
}

TEST(XMLParserTest, TellsTheLineOfAnError) {
    const XMLParserError error = errorOf("\n\n<a>\n<b>\n</a>");
    EXPECT_EQ(error.line, 5);
    EXPECT_EQ(error.code, 76);
    EXPECT_NE(error.message.find("mismatch"), std::string::npos);
    EXPECT_FALSE(errorOf("").message.empty());
}

TEST(XMLParserTest, ADecodedDocumentIsUTF8WhateverItDeclares) {
    EXPECT_EQ(events("<?xml version='1.0' encoding='iso-8859-1'?><a>\xC3\xA9</a>"), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='UTF-16'?><a>\xC3\xA9</a>"), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='no-such'?><a>\xC3\xA9</a>"), "{<a>\xC3\xA9</a>}");
}

TEST(XMLParserTest, OtherBytesAreReadInTheDeclaredEncoding) {
    EXPECT_EQ(
        events("<?xml version='1.0' encoding='windows-1251'?><a>\xCF\xF0</a>", StringEncoding::isoLatin1), "{<a>\xD0\x9F\xD1\x80</a>}");
    EXPECT_EQ(
        events("\n<?xml version='1.0' encoding = \"Shift_JIS\"?><a>\x93\xFA</a>", StringEncoding::isoLatin1), "{<a>\xE6\x97\xA5</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='utf-8'?><a>\xC3\xA9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
}

TEST(XMLParserTest, RewrittenNoBreakSpacesAreBytesOfTheDeclaredEncoding) {
    EXPECT_EQ(events("<?xml version='1.0' encoding='Shift_JIS'?><a>\x83&nbsp;</a>", StringEncoding::isoLatin1), "{<a>\xCE\x92</a>}");
    EXPECT_EQ(
        events("<?xml version='1.0' encoding='windows-1251'?><a>\xCF&nbsp;</a>", StringEncoding::isoLatin1), "{<a>\xD0\x9F\xC2\xA0</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='Shift_JIS'?><a>\x93\xFA&nbsp;</a>", StringEncoding::isoLatin1),
        "{<a>\xE6\x97\xA5\xC2\xA0</a>}")
        << "where that byte is none of the encoding, the reference stands for itself";
}

TEST(XMLParserTest, ADeclarationThatTheBytesContradictGivesWay) {
    EXPECT_EQ(events("<?xml version='1.0' encoding='utf-8'?><a>\xE9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='Shift_JIS'?><a>\x93</a>", StringEncoding::isoLatin1), "{<a>\xC2\x93</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='EUC-JP'?><a>\xE9-\xE9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9-\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='UTF-16LE'?><a>\xE9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0' encoding='no-such'?><a>\xE9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
}

TEST(XMLParserTest, BytesWithoutDeclarationAreReadAsTheyWereDecoded) {
    EXPECT_EQ(events("<a>\xE9</a>", StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events("<?xml version='1.0'?><a encoding='utf-8'>\xE9</a>", StringEncoding::isoLatin1), "{<a encoding=[utf-8]>\xC3\xA9</a>}");
}

TEST(XMLParserTest, AByteOrderMarkOfUTF16IsADeclaration) {
    EXPECT_EQ(events(std::string_view("\xFF\xFE<\0a\0>\0\xE9\0<\0/\0a\0>\0", 18), StringEncoding::isoLatin1), "{<a>\xC3\xA9</a>}");
    EXPECT_EQ(events(std::string_view("\xFE\xFF\0<\0a\0/\0>", 10), StringEncoding::isoLatin1), "{<a></a>}");
}

TEST(XMLParserTest, AnEventMayEndTheParse) {
    class Aborter : public Recorder {
    public:
        void didStartElement(std::string_view name, const XMLAttributes& attributes) override {
            Recorder::didStartElement(name, attributes);
            if (name == "b")
                parser->abortParsing("enough");
        }
        XMLParser* parser = nullptr;
    };
    for (const std::string_view document : {"<a>\n<b/><c/></a>", "<!DOCTYPE a [<!ENTITY e '<b/><c/>'>]><a>\n&e;<c/></a>"}) {
        Aborter aborter;
        XMLParser parser(document, StringEncoding::utf8);
        aborter.parser = &parser;
        parser.delegate = &aborter;
        EXPECT_FALSE(parser.parse());
        EXPECT_EQ(aborter.log, "{<a>\n<b>");
        EXPECT_EQ(parser.parserError()->message, "enough");
        EXPECT_EQ(parser.parserError()->line, 2);
    }
}

TEST(XMLParserTest, ReadsDeepNesting) {
    class Counter : public XMLParserDelegate {
    public:
        void didStartElement(std::string_view, const XMLAttributes&) override { ++elements; }
        void didEndElement(std::string_view) override { --elements; }
        void foundCharacters(std::string_view) override {}
        void foundCDATA(std::string_view) override {}
        int elements = 0;
    };
    Counter counter;
    const std::string document = repeated("<a>", 200'000) + repeated("</a>", 200'000);
    XMLParser parser(document, StringEncoding::utf8);
    parser.delegate = &counter;
    EXPECT_TRUE(parser.parse());
    EXPECT_EQ(counter.elements, 0);
}

TEST(XMLParserTest, RefusesBottomlessNesting) {
    EXPECT_EQ(errorOf(repeated("<a>", 1'000'001)).message, "Elements are nested too deeply");
}

TEST(XMLParserTest, ReadsLargeDocuments) {
    const std::string text = repeated("<b c='d'>0123456789 \xC3\xA9 &lt;</b>\r\n", 500'000);
    EXPECT_EQ(events("<a>" + text + "</a>"), "{<a>" + repeated("<b c=[d]>0123456789 \xC3\xA9 <</b>\n", 500'000) + "</a>}");
}

TEST(XMLParserTest, ReadsLargeTexts) {
    for (const std::string_view piece : {"x", "x\n\r\n", "\xC3\xA9", "\xE6\xBC\xA2\xF0\x9F\x98\x80", "&lt;&#65;"}) {
        const std::string text = repeated(piece, 13'000'000 / piece.size());
        const std::string log = events("<a><b>" + text + "</b><c/></a>");
        EXPECT_TRUE(log.starts_with("{<a><b>")) << piece;
        EXPECT_TRUE(log.ends_with("</b><c></c></a>}")) << piece;
        EXPECT_EQ(log.size(),
            events("<a><b>" + std::string(piece) + "</b><c/></a>").size() +
                (13'000'000 / piece.size() - 1) * (events("<a>" + std::string(piece) + "</a>").size() - events("<a></a>").size()))
            << piece;
    }
}

TEST(XMLParserTest, DeliversLargeCDATASectionsOfLargeDocumentsWhole) {
    const std::string section = repeated("<p> &amp; ", 300'000);
    std::string document = "<a>";
    std::string expected = "{<a>";
    for (int time = 0; time < 5; ++time) {
        document += "<!-- <![CDATA[ --><b><![CDATA[" + section + "]]></b>";
        expected += "<b>C(" + section + ")</b>";
    }
    EXPECT_EQ(events(document + "</a>"), expected + "</a>}");
}

TEST(XMLParserTest, RefusesElementsWithCountlessAttributes) {
    std::string tag = "x";
    for (int attribute = 0; attribute < 200'000; ++attribute)
        tag += " a" + std::to_string(attribute) + "='='";
    EXPECT_TRUE(isRefused("<" + tag + "/>"));
    EXPECT_TRUE(isRefused("<a><b/>" + std::string(20'000, ' ') + "<" + tag + "/></a>"));
    std::replace(tag.begin(), tag.end(), '\'', '"');
    EXPECT_TRUE(isRefused("<!DOCTYPE a [<!ENTITY e '&#60;" + tag + "/>'>]><a>&e;</a>"));
}

TEST(XMLParserTest, TakesLongTagsAndTextsFullOfSigns) {
    std::string tag = "<x";
    for (int attribute = 0; attribute < 500; ++attribute)
        tag += " a" + std::to_string(attribute) + "='" + std::string(100, '=') + "'";
    EXPECT_FALSE(isRefused(tag + ">" + std::string(100'000, '=') + "<!--" + std::string(100'000, '=') + "--></x>"));
    EXPECT_FALSE(isRefused("<x><![CDATA[" + std::string(100'000, '=') + "]]></x>"));
}

TEST(XMLParserTest, RefusesEntitiesThatExpandWithoutEnd) {
    std::string laughs = "<!DOCTYPE a [<!ENTITY l0 'lol'>";
    for (int level = 1; level < 12; ++level) {
        const std::string inner = "&l" + std::to_string(level - 1) + ";";
        laughs += "<!ENTITY l" + std::to_string(level) + " '" + repeated(inner, 10) + "'>";
    }
    EXPECT_TRUE(isRefused(laughs + "]><a>&l11;</a>"));
    EXPECT_TRUE(isRefused(laughs + "]><a b='&l11;'/>"));
    const std::string flat = "<!DOCTYPE a [<!ENTITY e '" + std::string(100'000, 'x') + "'>]><a>";
    EXPECT_TRUE(isRefused(flat + repeated("&e;", 2'000) + "</a>"));
    EXPECT_TRUE(isRefused(flat + repeated("<b c='&e;&e;&e;'/>", 1'000) + "</a>"));
}

TEST(XMLParserTest, TakesManySmallReferences) {
    EXPECT_FALSE(isRefused("<!DOCTYPE a [<!ENTITY e 'x'>]><a>" + repeated("&e;", 300'000) + "</a>"));
    EXPECT_FALSE(isRefused("<a>" + repeated("&nbsp;", 300'000) + "</a>"));
}

} // namespace brindle
