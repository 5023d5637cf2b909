#pragma once

#include "Brindle/shell/PreferencesPane.hpp"

#include <QWidget>
#include <string>

class QBoxLayout;
class QButtonGroup;

namespace brindle::desktop {

/// A pane of the preferences: its sections below each other, in each the rows. The pane outlives the view. Thread: main.
class PreferencesPaneView : public QWidget {
public:
    PreferencesPaneView(const PreferencesPane& pane, QWidget* parent);

private:
    void addSection(const PreferencesPane::Section& section, QBoxLayout& column);
    void addRow(const PreferencesPane::Row& row, QButtonGroup& radioButtons, QBoxLayout& column);
    /// Null for a kind of control that no pane has. `name` is what a screen reader calls one that has no text of its own.
    QWidget* makeWidget(Control& control, const std::string& name, QButtonGroup& radioButtons);
};

} // namespace brindle::desktop
