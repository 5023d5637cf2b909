#pragma once

#include "platform/Button.hpp"
#include "platform/ColorWell.hpp"
#include "platform/Control.hpp"
#include "platform/ImageView.hpp"
#include "platform/NumberField.hpp"
#include "platform/PopUpButton.hpp"
#include "platform/ProgressIndicator.hpp"
#include "platform/SearchField.hpp"
#include "platform/TextField.hpp"
#include "platform/TextView.hpp"
#include "platform/ToolbarItem.hpp"

#include <functional>

class QAbstractButton;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QToolButton;
class QWidget;

/// Each shows a control model by a widget that has its parent already, for as long as the widget lives; where a person types, presses or
/// chooses, the model follows. The model outlives a person's use of the widget. Thread: main.
namespace brindle::desktop {

void bind(Control& control, QWidget* widget);
/// The label shows the beginning of a text that is too long for one.
void bind(TextField& field, QLabel* label);
/// `changed` is called after a person has changed the text.
void bind(TextField& field, QLineEdit* edit, std::function<void()> changed = {});
/// The widget shows the first 20,000 characters.
void bind(TextView& view, QPlainTextEdit* edit);
/// A press presses the model; `pressed` is for a model without a press of its own.
void bind(Button& button, QAbstractButton* widget, std::function<void()> pressed = {});
void bind(ToolbarItem& item, QAbstractButton* widget, std::function<void()> pressed);
void bind(PopUpButton& button, QComboBox* box);
/// The button opens the menu; `chosen` is called after a person has chosen, with the item that is selected then.
void bind(PopUpButton& button, QToolButton* widget, std::function<void()> chosen = {});
void bind(ProgressIndicator& indicator, QProgressBar* bar);
/// `size`: of an image that has none of its own, in points.
void bind(ImageView& view, QLabel* label, Image::Size size);
void bind(NumberField& field, QDoubleSpinBox* box);
/// The button is filled with the colour, and opens the system's choice of colours.
void bind(ColorWell& well, QAbstractButton* widget);

} // namespace brindle::desktop
