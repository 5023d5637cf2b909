#include "html/ForeignNames.hpp"

#include <gtest/gtest.h>

namespace brindle::html {

TEST(ForeignNamesTest, GivesTagsOfSvgTheirProperCase) {
    EXPECT_EQ(adjustedSvgTagName("foreignobject"), "foreignObject");
    EXPECT_EQ(adjustedSvgTagName("altglyph"), "altGlyph");
    EXPECT_EQ(adjustedSvgTagName("textpath"), "textPath");
    EXPECT_EQ(adjustedSvgTagName("path"), "path");
    EXPECT_EQ(adjustedSvgTagName("zzz"), "zzz");
    EXPECT_EQ(adjustedSvgTagName(""), "");
}

TEST(ForeignNamesTest, GivesAttributesTheirProperCaseByVocabulary) {
    EXPECT_EQ(adjustedForeignKey(Element::Vocabulary::svg, "viewbox"), "viewBox");
    EXPECT_EQ(adjustedForeignKey(Element::Vocabulary::svg, "definitionurl"), "definitionurl");
    EXPECT_EQ(adjustedForeignKey(Element::Vocabulary::mathMl, "definitionurl"), "definitionURL");
    EXPECT_EQ(adjustedForeignKey(Element::Vocabulary::mathMl, "viewbox"), "viewbox");
}

TEST(ForeignNamesTest, KnowsWhichKeysHaveANamespace) {
    for (const char* key : {"xlink:actuate", "xlink:arcrole", "xlink:href", "xlink:role", "xlink:show", "xlink:title", "xlink:type",
             "xml:lang", "xml:space", "xmlns", "xmlns:xlink"}) {
        EXPECT_TRUE(namespacedKey(key)) << key;
    }
    for (const char* key : {"xlink", "xlink:label", "xml:base", "xmlns:svg", "href", "lang:xml", ":", ""}) {
        EXPECT_FALSE(namespacedKey(key)) << key;
    }
    EXPECT_EQ(namespacedKey("xlink:href")->prefix, "xlink");
    EXPECT_EQ(namespacedKey("xlink:href")->localName, "href");
    EXPECT_EQ(namespacedKey("xmlns")->localName, "xmlns");
}

} // namespace brindle::html
