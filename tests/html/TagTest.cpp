#include "html/Tag.hpp"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::firstElement;
using testing::parseXml;

TEST(TagTest, FormatsAllButAFewKnownTagsAsBlocks) {
    const std::set<std::string> inLine = {
        "title", "a", "p", "h1", "h2", "h3", "h4", "h5", "h6", "pre", "address", "li", "th", "td", "script", "style", "ins", "del", "s"};
    for (const std::string& name : inLine) {
        ASSERT_NE(Tag::known(name), nullptr) << name;
        EXPECT_FALSE(Tag::known(name)->formatAsBlock()) << name;
    }
    for (const std::string name : {"link", "div", "b", "i", "span", "br", "html", "source", "section"}) {
        ASSERT_NE(Tag::known(name), nullptr) << name;
        EXPECT_TRUE(Tag::known(name)->formatAsBlock()) << name;
    }
}

TEST(TagTest, PreservesWhiteSpaceInFiveTags) {
    for (const std::string name : {"pre", "plaintext", "listing", "xmp", "textarea"}) {
        EXPECT_TRUE(Tag::known(name)->preserveWhitespace()) << name;
    }
    EXPECT_FALSE(Tag::known("p")->preserveWhitespace());
}

TEST(TagTest, GivesAKnownTagItsDefaults) {
    const Tag& tag = *Tag::known("div");
    EXPECT_TRUE(tag.isBlock());
    EXPECT_TRUE(tag.formatAsBlock());
    EXPECT_TRUE(tag.canContainBlock());
    EXPECT_TRUE(tag.canContainInline());
    EXPECT_FALSE(tag.isEmpty());
    EXPECT_FALSE(tag.isSelfClosing());
    EXPECT_FALSE(tag.preserveWhitespace());
    EXPECT_FALSE(tag.isFormListed());
    EXPECT_FALSE(tag.isFormSubmittable());
}

TEST(TagTest, KnowsVoidAndFormTags) {
    EXPECT_TRUE(Tag::known("link")->isEmpty());
    EXPECT_TRUE(Tag::known("input")->isFormListed());
    EXPECT_TRUE(Tag::known("input")->isFormSubmittable());
    EXPECT_TRUE(Tag::known("button")->isFormListed());
    EXPECT_FALSE(Tag::known("button")->isFormSubmittable());
}

TEST(TagTest, TakesAnUnknownTagForNoBlockButFormatsItAsOne) {
    const auto document = parseXml("<guid/>");
    const Tag& tag = firstElement(*document).tag();
    EXPECT_FALSE(tag.isBlock());
    EXPECT_TRUE(tag.formatAsBlock());
    EXPECT_TRUE(tag.canContainBlock());
    EXPECT_TRUE(tag.canContainInline());
}

TEST(TagTest, DoesNotKnowANameInAnotherCase) {
    const auto document = parseXml("<Title>x</Title>");
    EXPECT_EQ(Tag::known("Title"), nullptr);
    EXPECT_TRUE(firstElement(*document).tag().formatAsBlock());
}

TEST(TagTest, HasTheIdentityOfItsNameInAnyCase) {
    EXPECT_EQ(Tag::known("a")->id(), TagId::a);
    EXPECT_EQ(Tag::known("template")->id(), TagId::templateElement);
    EXPECT_EQ(Tag::known("xmp")->id(), TagId::xmp);
    EXPECT_EQ(&Tag::known(TagId::selectedcontent), Tag::known("selectedcontent"));
    const auto document = parseXml("<Title><guid/></Title>");
    EXPECT_EQ(firstElement(*document).tag().id(), TagId::title);
    EXPECT_EQ(static_cast<const Element*>(firstElement(*document).firstChild())->tag().id(), TagId::unknown);
}

TEST(TagTest, IsSharedByElementsOfOneName) {
    const auto document = parseXml("<guid><guid/></guid>");
    EXPECT_EQ(&firstElement(*document).tag(), &static_cast<const Element*>(firstElement(*document).firstChild())->tag());
}

TEST(TagTest, IsToldApartAmongManyNames) {
    std::string text;
    for (int index = 0; index < 5000; ++index) {
        text += "<n" + std::to_string(index) + ">";
    }
    const auto document = parseXml(text);
    const Node* node = document.get();
    for (int index = 0; index < 5000; ++index) {
        node = node->firstChild();
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(static_cast<const Element*>(node)->tagName(), "n" + std::to_string(index));
    }
}

} // namespace brindle::html
