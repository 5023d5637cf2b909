#include "desktop/windows/SymbolButton.hpp"

#include "desktop/toolkit/Images.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QStyleOptionToolButton>

namespace brindle::desktop {

SymbolButton::SymbolButton(std::string_view image, const std::string& name, QWidget* parent) : QToolButton(parent) {
    constexpr int side = 16; // points
    setIconSize({side, side});
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setSymbol(image, name);
}

void SymbolButton::setSymbol(std::string_view image, const std::string& name) {
    setIcon(images::icon(Image::named(std::string(image))));
    setToolTip(toQString(name));
    setAccessibleName(toQString(name));
}

void SymbolButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->features.setFlag(QStyleOptionToolButton::HasMenu, false);
}

} // namespace brindle::desktop
