#include "platform/Button.hpp"
#include "platform/ColorWell.hpp"
#include "platform/NumberField.hpp"
#include "platform/PopUpButton.hpp"
#include "platform/ProgressIndicator.hpp"
#include "platform/SearchField.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

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

TEST(ControlTest, TellsOnceOfWhatIsSetTwice) {
    TextField field;
    ProgressIndicator indicator;
    int changes = 0;
    const auto ofField = field.observe([&] { ++changes; });
    const auto ofIndicator = indicator.observe([&] { ++changes; });
    for (int i = 0; i < 2; ++i)
        field.setEditable(true);
    EXPECT_EQ(changes, 1);
    for (int i = 0; i < 2; ++i)
        indicator.setAnimating(true);
    EXPECT_EQ(changes, 2);
}

TEST(TextFieldTest, IsForReadingUnlessItIsASearchField) {
    EXPECT_FALSE(TextField().isEditable());
    EXPECT_TRUE(SearchField().isEditable());
}

/// The states of a button after each of two presses, as the press is told.
std::vector<bool> statesAfterPresses(Button::Kind kind) {
    Button button(kind);
    std::vector<bool> states;
    button.onPress = [&] { states.push_back(button.state()); };
    button.press();
    button.press();
    return states;
}

TEST(ButtonTest, ChangesItsStateByItsKind) {
    EXPECT_THAT(statesAfterPresses(Button::Kind::push), ElementsAre(false, false));
    EXPECT_THAT(statesAfterPresses(Button::Kind::checkBox), ElementsAre(true, false));
    EXPECT_THAT(statesAfterPresses(Button::Kind::radio), ElementsAre(true, true));
}

TEST(ButtonTest, CanBePressedWithoutAnEffect) {
    Button button(Button::Kind::checkBox);
    button.press();
    EXPECT_TRUE(button.state());
}

/// Whether what a control calls may replace itself, and is whole until it has returned.
template <typename Call>
void expectReplaceable(std::function<void()>& function, const Call& call) {
    const auto held = std::make_shared<int>(0);
    long owners = 0;
    function = [&, held] {
        function = {};
        owners = held.use_count();
    };
    call();
    EXPECT_EQ(owners, 2);
    EXPECT_FALSE(function);
}

TEST(ControlTest, LetsWhatItCallsReplaceItself) {
    Button button;
    expectReplaceable(button.onPress, [&] { button.press(); });
    NumberField number(0, 1);
    expectReplaceable(number.onChoose, [&] { number.choose(1); });
    ColorWell well;
    expectReplaceable(well.onChoose, [&] { well.choose(Color()); });
    PopUpButton popUp;
    popUp.addItem(std::make_shared<MenuItem>("Five"), 5);
    expectReplaceable(popUp.onChoose, [&] { popUp.choose(5); });
}

TEST(NumberFieldTest, BeginsAtItsMinimum) {
    EXPECT_EQ(NumberField(3, 9).doubleValue(), 3);
}

TEST(NumberFieldTest, TakesTheNearestBoundForANumberOutsideOfThem) {
    NumberField field(3, 9);
    const auto valueOf = [&](double value) {
        field.setDoubleValue(value);
        return field.doubleValue();
    };
    EXPECT_EQ(valueOf(4.5), 4.5);
    EXPECT_EQ(valueOf(10), 9);
    EXPECT_EQ(valueOf(2), 3);
    EXPECT_EQ(valueOf(std::numeric_limits<double>::infinity()), 9);
    EXPECT_EQ(valueOf(std::numeric_limits<double>::quiet_NaN()), 3);
}

TEST(NumberFieldTest, TellsWhatAPersonHasEntered) {
    NumberField field(3, 9);
    double told = 0;
    field.onChoose = [&] { told = field.doubleValue(); };
    field.choose(10);
    EXPECT_EQ(told, 9);
}

TEST(ColorWellTest, TellsWhatAPersonHasChosen) {
    ColorWell well;
    std::string told;
    int changes = 0;
    const auto token = well.observe([&] { ++changes; });
    well.onChoose = [&] { told = well.color().hexString(); };
    for (int i = 0; i < 2; ++i)
        well.choose(Color::make("#12ab34").value());
    EXPECT_EQ(told, "#12ab34");
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

TEST_F(PopUpButtonTest, TellsWhatAPersonHasChosen) {
    std::vector<std::optional<std::int64_t>> told;
    button.onChoose = [&] { told.push_back(button.selectedTag()); };
    button.choose(10);
    button.choose(6);
    button.choose(10);
    EXPECT_THAT(told, ElementsAre(10, 10));
    button.selectItem(5);
    EXPECT_THAT(told, SizeIs(2)) << "the program chose";
}

TEST_F(PopUpButtonTest, FollowsWhatOthersDoToItsMenu) {
    const auto untagged = std::make_shared<MenuItem>("Untagged");
    button.menu().addItem(untagged);
    button.addItem(std::make_shared<MenuItem>("Twenty"), 20);
    EXPECT_EQ(button.tag(*untagged), std::nullopt);
    EXPECT_TRUE(button.selectItem(20));
    EXPECT_EQ(button.selectedItem()->title(), "Twenty");
    button.menu().removeAllItems();
    EXPECT_FALSE(button.selectItem(5));
    EXPECT_EQ(button.selectedTag(), std::nullopt);
}

TEST_F(PopUpButtonTest, IsEmptiedWithItsSelection) {
    button.selectItem(5);
    button.removeAllItems();
    EXPECT_EQ(button.selectedItem(), nullptr);
    EXPECT_FALSE(button.selectItem(5));
}

TEST_F(PopUpButtonTest, KnowsNoTagOfAnItemOfAnotherMenu) {
    EXPECT_EQ(button.tag(MenuItem("Five")), std::nullopt);
}

} // namespace
} // namespace brindle
