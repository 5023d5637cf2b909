#include <gtest/gtest.h>
#include <string>

#include "html/DataNodes.hpp"

namespace brindle::html {

TEST(TextNodeTest, GrowsBehindWhatItHas) {
    Arena arena;
    const std::string start = "start";
    TextNode& text = *arena.make<TextNode>(start);
    std::string expected = start;
    for (int index = 0; index < 1000; ++index) {
        const std::string piece = std::to_string(index);
        text.append(piece, arena);
        expected += piece;
        ASSERT_EQ(text.text(), expected);
    }
    EXPECT_EQ(start, "start");
}

TEST(TextNodeTest, LeavesATextAloneThatAnotherNodeShares) {
    Arena arena;
    TextNode& text = *arena.make<TextNode>("a");
    text.append("b", arena);
    TextNode& copy = *arena.make<TextNode>(text.text());
    copy.append("c", arena);
    text.append("d", arena);
    EXPECT_EQ(text.text(), "abd");
    EXPECT_EQ(copy.text(), "abc");
}

TEST(TextNodeTest, TakesAnotherText) {
    Arena arena;
    const std::string other = "other";
    TextNode& text = *arena.make<TextNode>("a");
    text.append("b", arena);
    text.setText(other);
    text.append("c", arena);
    EXPECT_EQ(text.text(), "otherc");
    EXPECT_EQ(other, "other");
}

} // namespace brindle::html
