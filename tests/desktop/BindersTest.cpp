#include "desktop/toolkit/Binders.hpp"

#include "desktop/toolkit/ControlBinding.hpp"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;

/// A window for the widgets, which are not shown before a test shows it.
class BindersTest : public ::testing::Test {
protected:
    template <typename Widget>
    Widget* make() {
        return new Widget(&window);
    }

    QWidget window;
};

TEST_F(BindersTest, AWidgetIsEnabledAndHiddenWithItsControl) {
    Control control;
    auto* const widget = make<QWidget>();
    bind(control, widget);
    control.setEnabled(false);
    EXPECT_FALSE(widget->isEnabled());
    control.setHidden(true);
    EXPECT_TRUE(widget->isHidden());
    control.setHidden(false);
    EXPECT_FALSE(widget->isHidden());
}

TEST_F(BindersTest, AControlMayGoOnWithoutItsWidget) {
    TextField field;
    auto* const label = make<QLabel>();
    bind(field, label);
    delete label;
    field.setStringValue("later");
}

TEST_F(BindersTest, AWidgetMayOutliveItsControl) {
    auto* const label = make<QLabel>();
    {
        TextField field;
        field.setStringValue("text");
        bind(field, label);
    }
    EXPECT_EQ(label->text(), "text");
}

TEST_F(BindersTest, FindsTheWidgetOfAControl) {
    TextField field;
    TextField other;
    auto* const edit = make<QLineEdit>();
    bind(field, edit);
    EXPECT_EQ(ControlBinding::widgetOf(field, &window), edit);
    EXPECT_EQ(ControlBinding::widgetOf(other, &window), nullptr);
}

TEST_F(BindersTest, ALabelShowsMarkupAsItStands) {
    TextField field;
    field.setStringValue("<b>bold</b> & more");
    auto* const label = make<QLabel>();
    bind(field, label);
    EXPECT_EQ(label->text(), "<b>bold</b> & more");
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(BindersTest, ALabelShowsTheBeginningOfALongText) {
    TextField field;
    field.setStringValue(std::string(5'000'000, 'x'));
    auto* const label = make<QLabel>();
    bind(field, label);
    EXPECT_EQ(label->text(), QString(1000, QLatin1Char('x')) + QChar(0x2026));
}

TEST_F(BindersTest, WhatIsTypedReachesTheModel) {
    TextField field;
    field.setEditable(true);
    auto* const edit = make<QLineEdit>();
    std::vector<std::string> told;
    bind(field, edit, [&] { told.push_back(field.stringValue()); });
    QTest::keyClicks(edit, "ab");
    EXPECT_THAT(told, ElementsAre("a", "ab"));
}

TEST_F(BindersTest, TypingInTheMiddleOfATextLeavesTheCursorThere) {
    TextField field;
    field.setEditable(true);
    field.setStringValue("ac");
    auto* const edit = make<QLineEdit>();
    bind(field, edit);
    edit->setCursorPosition(1);
    QTest::keyClicks(edit, "b");
    EXPECT_EQ(field.stringValue(), "abc");
    EXPECT_EQ(edit->cursorPosition(), 2);
}

TEST_F(BindersTest, AFieldThatCannotBeEditedTakesNoKeys) {
    TextField field;
    field.setEditable(false);
    field.setStringValue("fixed");
    auto* const edit = make<QLineEdit>();
    bind(field, edit);
    QTest::keyClicks(edit, "x");
    EXPECT_EQ(field.stringValue(), "fixed");
    EXPECT_TRUE(edit->isEnabled());
}

TEST_F(BindersTest, TheProgramsTextIsNotToldAsTyped) {
    TextField field;
    auto* const edit = make<QLineEdit>();
    int told = 0;
    bind(field, edit, [&] { ++told; });
    field.setStringValue("program's");
    EXPECT_EQ(edit->text(), "program's");
    EXPECT_EQ(told, 0);
}

TEST_F(BindersTest, ATextViewShowsItsText) {
    TextView view;
    view.setString("one\ntwo");
    auto* const edit = make<QPlainTextEdit>();
    bind(view, edit);
    EXPECT_EQ(edit->toPlainText(), "one\ntwo");
    EXPECT_TRUE(edit->isReadOnly());
}

TEST_F(BindersTest, ATextViewShowsTheBeginningOfALongTextWithoutTearingACharacter) {
    std::string text = "x";
    for (int i = 0; i < 100'000; ++i)
        text += "\U0001F41C"; // a surrogate pair in UTF-16
    TextView view;
    view.setString(text);
    auto* const edit = make<QPlainTextEdit>();
    bind(view, edit);
    const QString shown = edit->toPlainText();
    EXPECT_EQ(shown.size(), 20'000);
    EXPECT_TRUE(shown.isValidUtf16());
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
}

TEST_F(BindersTest, APressPressesTheModel) {
    int presses = 0;
    Button button(Button::Kind::push, "A & B");
    button.onPress = [&] { ++presses; };
    auto* const widget = make<QPushButton>();
    bind(button, widget);
    EXPECT_EQ(widget->text(), "A && B");
    widget->click();
    EXPECT_EQ(presses, 1);
}

TEST_F(BindersTest, ACheckBoxFollowsTheModelThatRefuses) {
    Button button(Button::Kind::checkBox, "Check");
    button.onPress = [&] { button.setState(false); };
    auto* const widget = make<QPushButton>();
    bind(button, widget);
    widget->click();
    EXPECT_FALSE(button.state());
    EXPECT_FALSE(widget->isChecked());
}

TEST_F(BindersTest, ACheckBoxIsTurnedOnByTheModel) {
    Button button(Button::Kind::checkBox, "Check");
    auto* const widget = make<QPushButton>();
    bind(button, widget);
    button.setState(true);
    EXPECT_TRUE(widget->isChecked());
}

TEST_F(BindersTest, AToolbarItemCallsItsController) {
    ToolbarItem item;
    int presses = 0;
    auto* const widget = make<QToolButton>();
    bind(item, widget, [&] { ++presses; });
    widget->click();
    EXPECT_EQ(presses, 1);
}

TEST_F(BindersTest, AProgressBarFollowsTheModel) {
    ProgressIndicator indicator;
    auto* const bar = make<QProgressBar>();
    bind(indicator, bar);
    indicator.setDoubleValue(41.6);
    EXPECT_EQ(bar->value(), 42);
    indicator.setAnimating(true);
    EXPECT_EQ(bar->maximum(), 0);
    indicator.setAnimating(false);
    EXPECT_EQ(bar->maximum(), 100);
    EXPECT_EQ(bar->value(), 42);
}

TEST_F(BindersTest, AnImageViewShowsItsImageOrNothing) {
    ImageView view;
    auto* const label = make<QLabel>();
    bind(view, label, {16, 16});
    EXPECT_TRUE(label->pixmap().isNull());
    view.setImage(Image::defaultFeedIcon());
    EXPECT_FALSE(label->pixmap().isNull());
    view.setImage(std::nullopt);
    EXPECT_TRUE(label->pixmap().isNull());
}

TEST_F(BindersTest, ANumberIsEnteredWithinItsBounds) {
    NumberField field(8, 24);
    std::vector<double> entered;
    field.onChoose = [&] { entered.push_back(field.doubleValue()); };
    auto* const box = make<QDoubleSpinBox>();
    bind(field, box);
    EXPECT_EQ(box->value(), 8);
    box->stepUp();
    EXPECT_THAT(entered, ElementsAre(9));
    field.setDoubleValue(100);
    EXPECT_EQ(box->value(), 24);
    EXPECT_THAT(entered, ElementsAre(9));
}

} // namespace

} // namespace brindle::desktop
