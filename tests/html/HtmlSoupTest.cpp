#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/html/Support.hpp"

// Tags in any order: whatever they are, a sound tree comes of them.

namespace brindle::html {

using testing::parseHtml;

namespace {

constexpr std::array names = {"a", "b", "i", "u", "nobr", "font", "p", "div", "span", "h1", "h2", "li", "ul", "dd", "dl", "button", "form",
    "table", "caption", "colgroup", "col", "tbody", "tfoot", "tr", "td", "th", "template", "select", "option", "optgroup",
    "selectedcontent", "datalist", "svg", "g", "desc", "foreignObject", "math", "mi", "annotation-xml", "object", "marquee", "ruby", "rtc",
    "rt", "frameset", "frame", "html", "head", "body", "title", "script", "noscript", "textarea", "pre", "br", "hr", "input", "x-y"};

constexpr std::array others = {"text", " ", "\n", "<!--c-->", "<![CDATA[d]]>", "&amp;", "<br/>", "<font size=1>", "<input type=hidden>",
    "<b id=1>", "<b id=2>", "<option selected>", "<svg/>", "<!DOCTYPE html>", "</br>", "</p>"};

std::string soup(std::mt19937& random) {
    std::string text = random() % 2 == 0 ? "<!DOCTYPE html>" : "";
    const std::size_t length = 1 + random() % 60;
    // A few names for each text, so that they meet again.
    std::array<const char*, 8> few{};
    for (const char*& name : few) {
        name = names[random() % names.size()];
    }
    for (std::size_t count = 0; count < length; ++count) {
        const auto kind = random() % 8;
        if (kind == 0) {
            text += others[random() % others.size()];
        } else {
            text.append(kind < 5 ? "<" : "</").append(few[random() % few.size()]).append(">");
        }
    }
    return text;
}

void expectSound(const Document& document) {
    for (const Node* node = &document; node != nullptr; node = node->nextInTree(&document)) {
        const Node* previous = nullptr;
        for (const Node* child = node->firstChild(); child != nullptr; child = child->nextSibling()) {
            ASSERT_EQ(child->parent(), node);
            ASSERT_EQ(child->previousSibling(), previous);
            previous = child;
        }
        ASSERT_EQ(node->lastChild(), previous);
    }
}

} // namespace

TEST(HtmlSoupTest, GivesASoundDocument) {
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        const std::string text = soup(random);
        SCOPED_TRACE(text);
        const auto document = parseHtml(text);
        expectSound(*document);
        const Elements roots = document->children();
        ASSERT_EQ(roots.size(), 1U);
        const Elements parts = roots[0]->children();
        ASSERT_GE(parts.size(), 2U);
        EXPECT_EQ(parts[0]->tagName(), "head");
        EXPECT_TRUE(parts[1]->tagName() == "body" || parts[1]->tagName() == "frameset");
        EXPECT_FALSE(parseHtml(document->outerHtml())->outerHtml().empty());
    }
}

TEST(HtmlSoupTest, GivesASoundFragmentInAnyContext) {
    std::mt19937 random(2);
    Parser parser = Parser::htmlParser();
    for (int round = 0; round < 5000; ++round) {
        const std::string text = soup(random);
        const std::string name = names[random() % names.size()];
        const std::string context = (random() % 4 == 0 ? "svg " : random() % 4 == 0 ? "math " : "") + name;
        SCOPED_TRACE(context + ": " + text);
        expectSound(*parser.parseFragment(text, context));
    }
}

} // namespace brindle::html
