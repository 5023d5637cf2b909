#pragma once

#include <QToolButton>
#include <string>
#include <string_view>

namespace brindle::desktop {

/// A button that is a symbol of the program, in the colour of the letters, with its name for tool tip and screen reader. The keyboard
/// reaches it. Thread: main.
class SymbolButton : public QToolButton {
public:
    /// `image` is the name of a drawing of the program.
    SymbolButton(std::string_view image, const std::string& name, QWidget* parent);

    void setSymbol(std::string_view image, const std::string& name);

protected:
    /// The symbol alone says that there is a menu.
    void initStyleOption(QStyleOptionToolButton* option) const override;
};

} // namespace brindle::desktop
