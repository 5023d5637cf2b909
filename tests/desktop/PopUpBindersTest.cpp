#include "desktop/toolkit/Binders.hpp"

#include <QComboBox>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <QWidget>
#include <cstdint>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;

/// A pop-up of three choices with a separator before the last.
class PopUpBindersTest : public ::testing::Test {
protected:
    PopUpBindersTest() {
        button.addItem(std::make_shared<MenuItem>("One"), 1);
        button.addItem(std::make_shared<MenuItem>("Two & more"), 2);
        button.addItem(MenuItem::separatorItem(), -1);
        button.addItem(std::make_shared<MenuItem>("Three"), 3);
        button.onChoose = [this] { chosen.push_back(button.selectedTag().value()); };
    }

    template <typename Widget>
    Widget* make() {
        return new Widget(&window);
    }

    QWidget window;
    PopUpButton button;
    std::vector<std::int64_t> chosen;
};

TEST_F(PopUpBindersTest, ABoxOffersTheItemsAndTheChoiceReachesTheModel) {
    auto* const box = make<QComboBox>();
    bind(button, box);
    EXPECT_EQ(box->count(), 4);
    EXPECT_EQ(box->itemText(1), "Two & more");
    QTest::keyClick(box, Qt::Key_End);
    EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(PopUpBindersTest, ABoxShowsWhatTheModelSelects) {
    auto* const box = make<QComboBox>();
    bind(button, box);
    EXPECT_EQ(box->currentIndex(), -1);
    button.selectItem(3);
    EXPECT_EQ(box->currentText(), "Three");
    EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(PopUpBindersTest, ABoxFollowsItemsThatComeAndGo) {
    auto* const box = make<QComboBox>();
    bind(button, box);
    button.addItem(std::make_shared<MenuItem>("Four"), 4);
    EXPECT_EQ(box->count(), 5);
    button.removeAllItems();
    EXPECT_EQ(box->count(), 0);
}

TEST_F(PopUpBindersTest, AButtonOpensTheMenuOfItsItems) {
    auto* const widget = make<QToolButton>();
    int told = 0;
    bind(button, widget, [&] { ++told; });
    emit widget->menu()->aboutToShow();
    const auto actions = widget->menu()->actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[1]->text(), "Two && more");
    EXPECT_TRUE(actions[2]->isSeparator());
    actions[3]->trigger();
    EXPECT_THAT(chosen, ElementsAre(3));
    EXPECT_EQ(told, 1);
}

TEST_F(PopUpBindersTest, ASecondChoiceOfTheSameItemIsToldAsWell) {
    auto* const widget = make<QToolButton>();
    bind(button, widget);
    emit widget->menu()->aboutToShow();
    widget->menu()->actions()[0]->trigger();
    widget->menu()->actions()[0]->trigger();
    EXPECT_THAT(chosen, ElementsAre(1, 1));
}

} // namespace

} // namespace brindle::desktop
