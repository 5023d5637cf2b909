#include "platform/PopUpButton.hpp"
#include "platform/TextField.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindle {
namespace {

TEST(ControlTest, TellsItsObserversOfEveryChange) {
    TextField field;
    int changes = 0;
    const auto token = field.observe([&] { ++changes; });
    field.setStringValue("text");
    field.setHidden(true);
    field.setEnabled(false);
    EXPECT_EQ(changes, 3);
}

TEST(ControlTest, TellsNothingWhereNothingChanged) {
    TextField field;
    field.setStringValue("text");
    int changes = 0;
    const auto token = field.observe([&] { ++changes; });
    field.setStringValue("text");
    field.setEnabled(true);
    EXPECT_EQ(changes, 0);
}

TEST(ControlTest, TellsNobodyWhoseTokenIsGone) {
    TextField field;
    int changes = 0;
    auto token = field.observe([&] { ++changes; });
    token.reset();
    field.setStringValue("text");
    EXPECT_EQ(changes, 0);
}

TEST(ControlTest, LetsAnObserverAddAnother) {
    TextField field;
    int changes = 0;
    Control::Token second;
    const auto first = field.observe([&] {
        if (!second)
            second = field.observe([&] { ++changes; });
    });
    field.setStringValue("a");
    EXPECT_EQ(changes, 0);
    field.setStringValue("b");
    EXPECT_EQ(changes, 1);
}

class PopUpButtonTest : public ::testing::Test {
protected:
    PopUpButtonTest() {
        button.addItem(std::make_shared<MenuItem>("Five"), 5);
        button.addItem(MenuItem::separatorItem(), 7);
        button.addItem(std::make_shared<MenuItem>("Ten"), 10);
    }

    PopUpButton button;
};

TEST_F(PopUpButtonTest, SelectsAnItemByItsTag) {
    EXPECT_EQ(button.selectedItem(), nullptr);
    EXPECT_EQ(button.selectedTag(), std::nullopt);
    EXPECT_TRUE(button.selectItem(10));
    EXPECT_EQ(button.selectedItem()->title(), "Ten");
    EXPECT_EQ(button.selectedTag(), 10);
}

TEST_F(PopUpButtonTest, KeepsItsSelectionWhereNoItemHasTheTag) {
    button.selectItem(5);
    EXPECT_FALSE(button.selectItem(6));
    EXPECT_FALSE(button.selectItem(7));
    EXPECT_EQ(button.selectedTag(), 5);
}

TEST_F(PopUpButtonTest, TellsItsObserversOfANewSelection) {
    int changes = 0;
    const auto token = button.observe([&] { ++changes; });
    button.selectItem(5);
    button.selectItem(5);
    EXPECT_EQ(changes, 1);
}

TEST_F(PopUpButtonTest, KnowsNoTagOfAnItemOfAnotherMenu) {
    EXPECT_EQ(button.tag(MenuItem("Five")), std::nullopt);
}

} // namespace
} // namespace brindle
