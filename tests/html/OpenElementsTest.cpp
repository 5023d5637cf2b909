#include "html/OpenElements.hpp"

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string_view>

#include "html/Document.hpp"

namespace brindle::html {

namespace {

class OpenElementsTest : public ::testing::Test {
protected:
    OpenElementsTest() { push("html"); }

    OpenElement& push(std::string_view name, Element::Vocabulary vocabulary = Element::Vocabulary::html) {
        const std::uint32_t index = _document.tags().intern(name);
        return _open.push(*_document.arena().make<Element>(_document.tags()[index], Attributes(), false, vocabulary), index);
    }

    std::uint32_t indexOf(std::string_view name) { return _document.tags().intern(name); }

private:
    Document _document{InputStream(std::string()), std::string()};
    SelectedContent _selectedContent{_document.arena()};

protected:
    OpenElements _open{_selectedContent};
};

constexpr std::array names = {std::string_view("p"), std::string_view("b"), std::string_view("i"), std::string_view("div"),
    std::string_view("li"), std::string_view("ul"), std::string_view("button"), std::string_view("table"), std::string_view("td"),
    std::string_view("template"), std::string_view("select"), std::string_view("option"), std::string_view("form"),
    std::string_view("span")};

bool isBoundary(const OpenElement& entry, Boundary boundary) {
    return (entry.traits & traits::bounds(boundary)) != 0 || entry.below == nullptr;
}

/// What the standard does: a walk down the stack.
const OpenElement* walkTo(const OpenElements& stack, TagId id, Boundary boundary) {
    for (const OpenElement* entry = &stack.current();; entry = entry->below) {
        if (entry->id == id) {
            return entry;
        }
        if (isBoundary(*entry, boundary)) {
            return nullptr;
        }
    }
}

/// The entry at `depth` below the top, or the one above the root.
OpenElement& entryAt(const OpenElements& stack, std::size_t depth) {
    OpenElement* entry = &stack.current();
    while (depth > 0 && entry->below->below != nullptr) {
        entry = entry->below;
        --depth;
    }
    return *entry;
}

/// Moves the newest `b` above the first special element over it, as the adoption agency does, if there is one in the scope.
void moveFormatting(OpenElements& stack) {
    OpenElement* const bold = stack.within(TagId::b, Boundary::scope);
    OpenElement* block = bold != nullptr ? bold->above : nullptr;
    while (block != nullptr && (block->traits & traits::special) == 0) {
        block = block->above;
    }
    if (block != nullptr) {
        stack.moveAbove(*bold, *block, *bold->element);
    }
}

} // namespace

TEST_F(OpenElementsTest, AnswersAsAWalkDownTheStackWould) {
    std::mt19937 random(1);
    for (int step = 0; step < 20'000; ++step) {
        const auto choice = random() % 10;
        const bool isForeign = random() % 16 == 0;
        if (choice < 6 || _open.holdsRootOnly()) {
            push(isForeign ? "g" : names[random() % names.size()], isForeign ? Element::Vocabulary::svg : Element::Vocabulary::html);
        } else if (choice < 7) {
            _open.pop();
        } else if (choice < 8) {
            _open.popThrough(entryAt(_open, random() % 20));
        } else if (choice < 9) {
            _open.remove(entryAt(_open, random() % 10));
        } else {
            moveFormatting(_open);
        }
        for (std::size_t kind = 0; kind < boundaryCount; ++kind) {
            const auto boundary = static_cast<Boundary>(kind);
            const TagId id = Tag::known(names[random() % names.size()])->id();
            ASSERT_EQ(_open.within(id, boundary), walkTo(_open, id, boundary)) << step;
        }
    }
}

TEST_F(OpenElementsTest, StartsWithTheRoot) {
    EXPECT_TRUE(_open.holdsRootOnly());
    EXPECT_EQ(_open.current().id, TagId::html);
    _open.pop();
    EXPECT_TRUE(_open.empty());
}

TEST_F(OpenElementsTest, FindsTheNewestElementOfATag) {
    push("p");
    OpenElement& newest = push("p");
    push("b");
    EXPECT_EQ(_open.topmost(TagId::p), &newest);
    _open.popThrough(newest);
    EXPECT_NE(_open.topmost(TagId::p), nullptr);
    EXPECT_FALSE(_open.has(TagId::b));
}

TEST_F(OpenElementsTest, EndsEachScopeAtItsOwnElements) {
    const auto isWithin = [this](Boundary boundary) { return _open.within(TagId::p, boundary) != nullptr; };
    OpenElement& paragraph = push("p");
    for (const std::string_view name : {"ul", "ol"}) {
        const OpenElement& list = push(name);
        EXPECT_TRUE(isWithin(Boundary::scope) && isWithin(Boundary::buttonScope) && isWithin(Boundary::tableScope));
        EXPECT_FALSE(isWithin(Boundary::listItemScope));
        _open.popThrough(list);
    }
    const OpenElement& button = push("button");
    EXPECT_TRUE(isWithin(Boundary::scope) && isWithin(Boundary::listItemScope));
    EXPECT_FALSE(isWithin(Boundary::buttonScope));
    _open.popThrough(button);
    for (const std::string_view name : {"applet", "caption", "td", "th", "marquee", "object", "select"}) {
        const OpenElement& boundary = push(name);
        EXPECT_FALSE(isWithin(Boundary::scope) || isWithin(Boundary::listItemScope) || isWithin(Boundary::buttonScope));
        EXPECT_TRUE(isWithin(Boundary::tableScope)) << name;
        _open.popThrough(boundary);
    }
    for (const std::string_view name : {"table", "template"}) {
        const OpenElement& boundary = push(name);
        EXPECT_FALSE(isWithin(Boundary::scope) || isWithin(Boundary::tableScope)) << name;
        _open.popThrough(boundary);
    }
    EXPECT_EQ(_open.within(TagId::p, Boundary::scope), &paragraph);
}

TEST_F(OpenElementsTest, TakesABoundaryForPartOfItsScope) {
    OpenElement& table = push("table");
    push("tbody");
    EXPECT_EQ(_open.within(TagId::table, Boundary::tableScope), &table);
    push("template");
    EXPECT_EQ(_open.within(TagId::table, Boundary::tableScope), nullptr);
}

TEST_F(OpenElementsTest, EndsScopesAtIntegrationPoints) {
    push("p");
    push("svg", Element::Vocabulary::svg);
    EXPECT_NE(_open.within(TagId::p, Boundary::scope), nullptr);
    for (const std::string_view name : {"foreignObject", "desc", "title"}) {
        const OpenElement& point = push(name, Element::Vocabulary::svg);
        EXPECT_EQ(_open.within(TagId::p, Boundary::scope), nullptr) << name;
        _open.popThrough(point);
    }
    push("mi", Element::Vocabulary::mathMl);
    EXPECT_EQ(_open.within(TagId::p, Boundary::scope), nullptr);
}

TEST_F(OpenElementsTest, TellsForeignElementsFromThoseOfHtml) {
    push("svg", Element::Vocabulary::svg);
    OpenElement& link = push("a", Element::Vocabulary::svg);
    push("g", Element::Vocabulary::svg);
    EXPECT_FALSE(_open.has(TagId::a));
    EXPECT_EQ(_open.foreignWithin(indexOf("a")), &link);
    push("desc", Element::Vocabulary::svg);
    push("p");
    EXPECT_EQ(_open.foreignWithin(indexOf("a")), nullptr);
    push("svg", Element::Vocabulary::svg);
    EXPECT_EQ(_open.foreignWithin(indexOf("a")), nullptr);
    EXPECT_NE(_open.foreignWithin(indexOf("svg")), nullptr);
}

TEST_F(OpenElementsTest, FindsElementsOfUnknownNames) {
    OpenElement& custom = push("x-y");
    push("span");
    EXPECT_EQ(_open.within(TagId::unknown, indexOf("x-y"), Boundary::special), &custom);
    EXPECT_EQ(_open.within(TagId::unknown, indexOf("x-z"), Boundary::special), nullptr);
    push("div");
    EXPECT_EQ(_open.within(TagId::unknown, indexOf("x-y"), Boundary::special), nullptr);
}

TEST_F(OpenElementsTest, JoinsScopesWhenABoundaryIsTakenOut) {
    OpenElement& span = push("span");
    OpenElement& form = push("form");
    push("i");
    push("div");
    push("u");
    _open.remove(form);
    EXPECT_EQ(_open.current().id, TagId::u);
    EXPECT_EQ(_open.within(TagId::i, Boundary::special), nullptr);
    _open.popThrough(*_open.topmost(TagId::div));
    EXPECT_NE(_open.within(TagId::i, Boundary::special), nullptr);
    EXPECT_EQ(_open.within(TagId::span, Boundary::special), &span);
}

TEST_F(OpenElementsTest, MovesAnElementUpTheStack) {
    OpenElement& bold = push("b");
    push("span");
    OpenElement& block = push("div");
    push("p");
    _open.moveAbove(bold, block, *bold.element);
    EXPECT_EQ(block.above, &bold);
    EXPECT_EQ(bold.above->id, TagId::p);
    EXPECT_EQ(bold.boundary(Boundary::special), &block);
    EXPECT_EQ(_open.topmost(TagId::b), &bold);
    _open.popThrough(bold);
    EXPECT_EQ(&_open.current(), &block);
    EXPECT_FALSE(_open.has(TagId::b));
}

TEST_F(OpenElementsTest, KnowsTheNearestElementThatDecidesOnTheInsertionMode) {
    push("body");
    EXPECT_EQ(_open.current().boundary(Boundary::insertionMode)->id, TagId::body);
    push("div");
    OpenElement& cell = push("td");
    push("b");
    EXPECT_EQ(_open.current().boundary(Boundary::insertionMode), &cell);
}

} // namespace brindle::html
