#include "html/ElementTraits.hpp"

#include <gtest/gtest.h>
#include <string>

#include "html/Tag.hpp"

namespace brindle::html {

namespace {

/// Whether an element of HTML has all of the bits.
bool has(const std::string& name, ElementTraits bits) {
    return (traitsOfHtml(Tag::known(name)->id()) & bits) == bits;
}

ElementTraits traitsOf(const char* name, Element::Vocabulary vocabulary, const Attributes& attributes = Attributes()) {
    const Tag tag(name, name, Tag::unknownFlags);
    return traitsOfForeign(Element(tag, attributes, false, vocabulary));
}

} // namespace

TEST(ElementTraitsTest, KnowTheSpecialElements) {
    for (const std::string name : {"address", "div", "p", "li", "button", "search", "summary", "html", "template", "xmp"}) {
        EXPECT_TRUE(has(name, traits::special)) << name;
    }
    for (const std::string name : {"a", "b", "span", "option", "optgroup", "ruby", "dialog", "datalist", "label", "canvas"}) {
        EXPECT_FALSE(has(name, traits::special)) << name;
    }
    EXPECT_EQ(traitsOfHtml(TagId::unknown), 0U);
}

TEST(ElementTraitsTest, LetTheSearchForAListItemPassThreeSpecialElements) {
    for (const std::string name : {"address", "div", "p"}) {
        EXPECT_FALSE(has(name, traits::bounds(Boundary::listItem))) << name;
    }
    EXPECT_TRUE(has("section", traits::bounds(Boundary::listItem)));
}

TEST(ElementTraitsTest, KnowTheImpliedEndTags) {
    for (const std::string name : {"dd", "dt", "li", "optgroup", "option", "p", "rb", "rp", "rt", "rtc"}) {
        EXPECT_TRUE(has(name, traits::impliedEnd)) << name;
    }
    EXPECT_FALSE(has("td", traits::impliedEnd));
    EXPECT_FALSE(has("div", traits::impliedEnd));
}

TEST(ElementTraitsTest, KnowTheIntegrationPoints) {
    for (const char* name : {"mi", "mo", "mn", "ms", "mtext"}) {
        EXPECT_NE(traitsOf(name, Element::Vocabulary::mathMl) & traits::mathMlTextIntegrationPoint, 0U) << name;
        EXPECT_EQ(traitsOf(name, Element::Vocabulary::svg), 0U) << name;
    }
    for (const char* name : {"foreignObject", "desc", "title"}) {
        EXPECT_NE(traitsOf(name, Element::Vocabulary::svg) & traits::htmlIntegrationPoint, 0U) << name;
        EXPECT_EQ(traitsOf(name, Element::Vocabulary::mathMl), 0U) << name;
    }
}

TEST(ElementTraitsTest, TakeAnnotationsForIntegrationPointsWhereTheirEncodingSaysSo) {
    for (const char* encoding : {"text/html", "TEXT/HTML", "application/xhtml+xml"}) {
        const Attribute attribute{"encoding", encoding};
        EXPECT_NE(traitsOf("annotation-xml", Element::Vocabulary::mathMl, Attributes({&attribute, 1})) & traits::htmlIntegrationPoint, 0U);
    }
    const Attribute attribute{"encoding", "text/html "};
    EXPECT_EQ(traitsOf("annotation-xml", Element::Vocabulary::mathMl, Attributes({&attribute, 1})) & traits::htmlIntegrationPoint, 0U);
    EXPECT_NE(traitsOf("annotation-xml", Element::Vocabulary::mathMl) & traits::annotation, 0U);
}

} // namespace brindle::html
