#include "desktop/system/KeyFile.hpp"

#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

TEST(KeyFileTest, FindsAValueInItsGroup) {
    const KeyFile file("[A]\nkey=1\n[B]\nkey = 2 \n");
    EXPECT_EQ(file.value("A", "key"), "1");
    EXPECT_EQ(file.value("B", "key"), "2");
    EXPECT_EQ(file.value("C", "key"), std::nullopt);
    EXPECT_EQ(file.value("A", "other"), std::nullopt);
}

TEST(KeyFileTest, PassesOverCommentsAndFaultyLines) {
    const KeyFile file("key=0\n[A]\n#key=1\nnonsense\nkey=2\nkey=3\n");
    EXPECT_EQ(file.value("A", "key"), "2");
}

TEST(KeyFileTest, GivesTheFilledPartsOfAList) {
    EXPECT_THAT(KeyFile("[A]\nkey=one;; two ;\n").list("A", "key"), ElementsAre("one", "two"));
}

TEST(KeyFileTest, ReplacesAValueInItsLine) {
    KeyFile file("[A]\nkey=1\nother=2\n");
    file.set("A", "key", "9");
    EXPECT_EQ(file.text(), "[A]\nkey=9\nother=2\n");
}

TEST(KeyFileTest, AppendsAKeyBehindItsGroupsLastLine) {
    KeyFile file("[A]\nkey=1\n\n[B]\n");
    file.set("A", "new", "2");
    EXPECT_EQ(file.text(), "[A]\nkey=1\nnew=2\n\n[B]\n");
}

TEST(KeyFileTest, MakesAGroup) {
    KeyFile file("[A]\nkey=1");
    file.set("B", "new", "2");
    EXPECT_EQ(file.text(), "[A]\nkey=1\n\n[B]\nnew=2\n");
}

} // namespace brindle::desktop
