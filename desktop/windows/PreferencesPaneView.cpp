#include "desktop/windows/PreferencesPaneView.hpp"

#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/BoxColors.hpp"
#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/RoomyButton.hpp"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace brindle::desktop {

namespace {

// In points.
constexpr int margin = 20;
constexpr int sectionGap = 16;
constexpr int indent = 12;

QAbstractButton* makeButton(Button& button, QButtonGroup& radioButtons, QWidget* parent) {
    QAbstractButton* made = nullptr;
    switch (button.kind()) {
    case Button::Kind::push:
        made = new RoomyButton(parent);
        break;
    case Button::Kind::checkBox:
        made = new QCheckBox(parent);
        break;
    case Button::Kind::radio:
        made = new QRadioButton(parent);
        radioButtons.addButton(made);
        break;
    }
    if (button.kind() != Button::Kind::push)
        BoxColors::apply(made);
    bind(button, made);
    return made;
}

QWidget* makeColorButton(ColorWell& well, QWidget* parent) {
    constexpr QSize swatch(36, 14); // points
    auto* const button = new QPushButton(parent);
    button->setIconSize(swatch);
    bind(well, button);
    return button;
}

QWidget* makePopUpButton(PopUpButton& button, QWidget* parent) {
    constexpr int shownLetters = 22;
    auto* const box = new QComboBox(parent);
    // As wide with few choices as with many, and with long ones.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(shownLetters);
    bind(button, box);
    return box;
}

QWidget* makeNumberBox(NumberField& field, QWidget* parent) {
    auto* const box = new QDoubleSpinBox(parent);
    box->setDecimals(0);
    bind(field, box);
    return box;
}

/// The label of the row, or what stands before its controls.
std::string nameOf(const PreferencesPane::Row& row) {
    if (!row.label.empty())
        return row.label;
    const auto first = row.controls.empty() ? nullptr : std::dynamic_pointer_cast<Button>(row.controls.front());
    return first ? first->title() : std::string();
}

} // namespace

PreferencesPaneView::PreferencesPaneView(const PreferencesPane& pane, QWidget* parent) : QWidget(parent) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    for (const PreferencesPane::Section& section : pane.sections()) {
        if (column->count() > 0)
            column->addSpacing(sectionGap);
        addSection(section, *column);
    }
    column->addStretch();
}

void PreferencesPaneView::addSection(const PreferencesPane::Section& section, QBoxLayout& column) {
    if (!section.heading.empty()) {
        auto* const heading = new QLabel(toQString(section.heading), this);
        heading->setTextFormat(Qt::PlainText);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        column.addWidget(heading);
    }
    auto* const radioButtons = new QButtonGroup(this);
    auto* const rows = new QVBoxLayout;
    rows->setContentsMargins(indent, 0, 0, 0);
    column.addLayout(rows);
    for (const PreferencesPane::Row& row : section.rows)
        addRow(row, *radioButtons, *rows);
}

void PreferencesPaneView::addRow(const PreferencesPane::Row& row, QButtonGroup& radioButtons, QBoxLayout& column) {
    auto* const line = new QHBoxLayout;
    column.addLayout(line);
    auto* const label = row.label.empty() ? nullptr : new QLabel(toQString(row.label), this);
    if (label)
        line->addWidget(label);
    for (const auto& control : row.controls) {
        QWidget* const widget = makeWidget(*control, nameOf(row), radioButtons);
        if (!widget)
            continue;
        line->addWidget(widget);
        if (label && !label->buddy())
            label->setBuddy(widget);
    }
    line->addStretch();
}

QWidget* PreferencesPaneView::makeWidget(Control& control, const std::string& name, QButtonGroup& radioButtons) {
    QWidget* made = nullptr;
    if (auto* const button = dynamic_cast<Button*>(&control))
        return makeButton(*button, radioButtons, this);
    if (auto* const well = dynamic_cast<ColorWell*>(&control))
        made = makeColorButton(*well, this);
    else if (auto* const popUp = dynamic_cast<PopUpButton*>(&control))
        made = makePopUpButton(*popUp, this);
    else if (auto* const number = dynamic_cast<NumberField*>(&control))
        made = makeNumberBox(*number, this);
    if (made)
        made->setAccessibleName(toQString(name));
    return made;
}

} // namespace brindle::desktop
