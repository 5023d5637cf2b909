#include "desktop/toolkit/ControlBinding.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(ControlBindingTest, KeepsAChildTrueToItsControl) {
    QWidget window;
    auto* const child = new QWidget(&window);
    Control control;
    int shown = 0;
    new ControlBinding(control, child, [&] { ++shown; });
    EXPECT_FALSE(child->isHidden());
    control.setHidden(true);
    EXPECT_TRUE(child->isHidden());
    control.setEnabled(false);
    EXPECT_FALSE(child->isEnabled());
    EXPECT_EQ(shown, 3);
}

TEST(ControlBindingTest, MakesNoWindowOfAWidgetWithoutAParent) {
    Control control;
    QWidget widget;
    new ControlBinding(control, &widget, {});
    EXPECT_FALSE(widget.isVisible());
    control.setHidden(true);
    control.setHidden(false);
    EXPECT_FALSE(widget.isVisible());
}

TEST(ControlBindingTest, FindsTheWidgetOfAControl) {
    QWidget window;
    auto* const child = new QWidget(&window);
    Control control;
    EXPECT_EQ(ControlBinding::widgetOf(control, &window), nullptr);
    new ControlBinding(control, child, {});
    EXPECT_EQ(ControlBinding::widgetOf(control, &window), child);
}

} // namespace brindle::desktop
