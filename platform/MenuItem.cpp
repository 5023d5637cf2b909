#include "platform/MenuItem.hpp"

#include "platform/Menu.hpp"

#include <utility>

namespace brindle {

std::shared_ptr<MenuItem> MenuItem::separatorItem() {
    const auto item = std::make_shared<MenuItem>();
    item->_isSeparator = true;
    return item;
}

void MenuItem::tell() {
    if (_menu)
        _menu->tellOfItem(*this);
}

void MenuItem::setTitle(std::string title) {
    _title = std::move(title);
    tell();
}

void MenuItem::setStyle(std::shared_ptr<const TextStyle> style) {
    _style = std::move(style);
    tell();
}

void MenuItem::setAction(std::string_view action) {
    _action = action;
    tell();
}

void MenuItem::setTarget(std::weak_ptr<ActionHandler> target) {
    _target = std::move(target);
    _hasTarget = true;
    tell();
}

void MenuItem::setEnabled(bool isEnabled) {
    if (std::exchange(_isEnabled, isEnabled) != isEnabled)
        tell();
}

void MenuItem::setState(bool state) {
    if (std::exchange(_state, state) != state)
        tell();
}

void MenuItem::setImage(std::optional<Image> image) {
    _image = std::move(image);
    tell();
}

void MenuItem::setRepresentedObject(std::shared_ptr<Object> object) {
    _representedObject = std::move(object);
    tell();
}

const std::shared_ptr<Menu>& MenuItem::submenu() {
    if (!_submenu) {
        if (const auto source = _submenuSource.lock())
            _submenu = source->makeSubmenu(*this);
    }
    return _submenu;
}

void MenuItem::setSubmenu(std::shared_ptr<Menu> submenu) {
    _submenu = std::move(submenu);
    _submenuSource.reset();
    tell();
}

void MenuItem::setSubmenuSource(std::weak_ptr<SubmenuSource> source) {
    _submenu.reset();
    _submenuSource = std::move(source);
    tell();
}

void MenuItem::setView(std::shared_ptr<View> view) {
    _view = std::move(view);
    tell();
}

} // namespace brindle
