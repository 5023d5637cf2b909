#include "html/ActiveFormattingElements.hpp"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "html/Document.hpp"
#include "html/OpenElements.hpp"

namespace brindle::html {

namespace {

class ActiveFormattingElementsTest : public ::testing::Test {
protected:
    ActiveFormattingElementsTest() { open("html"); }

    OpenElement& open(std::string_view name, const std::vector<Attribute>& attributes = {}) {
        const Tag& tag = _document.tags()[_document.tags().intern(name)];
        return _elements.push(*_document.arena().make<Element>(tag, copyOf(attributes, _document.arena()), false), 0);
    }

    FormattingElement& push(std::string_view name, const std::vector<Attribute>& attributes = {}) {
        _active.push(open(name, attributes));
        return *_active.last();
    }

    std::string_view kept(const std::string& text) { return _document.arena().copy(text); }

    std::size_t size() const {
        std::size_t count = 0;
        for (const FormattingElement* entry = _active.last(); entry != nullptr; entry = entry->previous) {
            ++count;
        }
        return count;
    }

private:
    Document _document{InputStream(std::string()), std::string()};
    SelectedContent _selectedContent{_document.arena()};

protected:
    OpenElements _elements{_selectedContent};
    ActiveFormattingElements _active;
};

} // namespace

TEST_F(ActiveFormattingElementsTest, FindsTheNewestOfATagSinceTheLastMarker) {
    FormattingElement& bold = push("b");
    push("i");
    EXPECT_EQ(_active.lastOf(TagId::b), &bold);
    _active.pushMarker();
    EXPECT_EQ(_active.lastOf(TagId::b), nullptr);
    push("b");
    EXPECT_NE(_active.lastOf(TagId::b), &bold);
    _active.clearToLastMarker();
    EXPECT_EQ(_active.lastOf(TagId::b), &bold);
    EXPECT_EQ(size(), 2U);
}

TEST_F(ActiveFormattingElementsTest, KnowsWhichOfItsElementsAreOpen) {
    FormattingElement& bold = push("b");
    EXPECT_EQ(bold.open, &_elements.current());
    EXPECT_EQ(_elements.current().formatting, &bold);
    _elements.pop();
    EXPECT_EQ(bold.open, nullptr);
}

TEST_F(ActiveFormattingElementsTest, LetsGoOfAnEntryThatIsTakenOut) {
    FormattingElement& first = push("b");
    FormattingElement& second = push("b");
    OpenElement* const open = second.open;
    _active.remove(second);
    EXPECT_EQ(open->formatting, nullptr);
    EXPECT_EQ(_active.lastOf(TagId::b), &first);
    EXPECT_EQ(_active.last(), &first);
}

TEST_F(ActiveFormattingElementsTest, KeepsThreeOfTheSameNameAndAttributes) {
    FormattingElement& other = push("b", {{"x", "1"}});
    FormattingElement& earliest = push("b", {{"x", "1"}, {"y", "2"}});
    push("b", {{"y", "2"}, {"x", "1"}});
    push("i");
    push("b", {{"x", "1"}, {"y", "2"}});
    ASSERT_EQ(size(), 5U);
    ASSERT_EQ(earliest.previous, &other);
    push("b", {{"y", "2"}, {"x", "1"}});
    EXPECT_EQ(size(), 5U);
    EXPECT_NE(other.next, &earliest);
}

TEST_F(ActiveFormattingElementsTest, CountsThreeSinceTheLastMarkerOnly) {
    for (int count = 0; count < 3; ++count) {
        push("b");
    }
    _active.pushMarker();
    for (int count = 0; count < 4; ++count) {
        push("b");
    }
    EXPECT_EQ(size(), 3U + 1 + 3);
}

TEST_F(ActiveFormattingElementsTest, KeepsToThreeInALongListAsWell) {
    for (int round = 0; round < 5; ++round) {
        for (int index = 0; index < 100; ++index) {
            push("b", {{"id", kept(std::to_string(index))}});
        }
    }
    EXPECT_EQ(size(), 300U);
    _active.pushMarker();
    push("b", {{"id", "7"}});
    EXPECT_EQ(size(), 302U);
    _active.clearToLastMarker();
    EXPECT_EQ(_active.last()->element->attributes().find("id")->value, "99");
}

TEST_F(ActiveFormattingElementsTest, MovesAnEntryBehindAnother) {
    FormattingElement& bold = push("b");
    FormattingElement& italic = push("i");
    push("u");
    _active.moveBehind(bold, italic);
    EXPECT_EQ(italic.next, &bold);
    EXPECT_EQ(italic.previous, nullptr);
    EXPECT_EQ(bold.next, _active.last());
    _active.moveBehind(bold, *_active.last());
    EXPECT_EQ(_active.last(), &bold);
    EXPECT_EQ(_active.lastOf(TagId::b), &bold);
}

TEST_F(ActiveFormattingElementsTest, ClearsAllWhereNoMarkerIs) {
    push("b");
    push("i");
    _active.clearToLastMarker();
    EXPECT_EQ(_active.last(), nullptr);
}

} // namespace brindle::html
