#include "html/AttributeMerge.hpp"

#include <array>
#include <gtest/gtest.h>

#include "html/Tag.hpp"

namespace brindle::html {

TEST(AttributeMergeTest, KeepsTheFirstValueOfEachKey) {
    Arena arena;
    const std::array own = {Attribute{"a", "1"}};
    Element element(*Tag::known("body"), Attributes(own), false);
    AttributeMerge merge;
    const std::array more = {Attribute{"a", "2"}, Attribute{"b", "2"}};
    const std::array most = {Attribute{"b", "3"}, Attribute{"c", "3"}};
    merge.add(element, more);
    merge.add(element, most);
    EXPECT_EQ(element.attributes().size(), 1U);
    merge.finish(arena);
    ASSERT_EQ(element.attributes().size(), 3U);
    EXPECT_EQ(element.attributes().find("a")->value, "1");
    EXPECT_EQ(element.attributes().find("b")->value, "2");
    EXPECT_EQ(element.attributes().find("c")->value, "3");
}

TEST(AttributeMergeTest, ChangesNothingWhereNothingWasAdded) {
    Arena arena;
    AttributeMerge merge;
    merge.finish(arena);
    EXPECT_TRUE(copyOf({}, arena).empty());
}

} // namespace brindle::html
