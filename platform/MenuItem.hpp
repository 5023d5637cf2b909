#pragma once

#include "platform/Action.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Image.hpp"
#include "platform/TextStyle.hpp"
#include "platform/View.hpp"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace brindle {

class Menu;
class MenuItem;

/// Makes an item's submenu when somebody first looks into it, for items that are many and seldom looked into.
class SubmenuSource {
public:
    virtual ~SubmenuSource() = default;
    virtual std::shared_ptr<Menu> makeSubmenu(const MenuItem& item) = 0;
};

/// One line of a menu: a model that a toolkit shows. Small, since a menu has tens of thousands: what several items share (style, image) is
/// shared by them. Every change is told to the observers of its menu. Thread: main.
class MenuItem : public ActionSender {
public:
    /// `action` is a constant of the program; empty for an item that does nothing.
    explicit MenuItem(std::string title = {}, std::string_view action = {}) : _title(std::move(title)), _action(action) {}
    static std::shared_ptr<MenuItem> separatorItem();

    bool isSeparator() const { return _isSeparator; }

    const std::string& title() const { return _title; }
    void setTitle(std::string title);

    /// How the title is set; null for plain text.
    const std::shared_ptr<const TextStyle>& style() const { return _style; }
    void setStyle(std::shared_ptr<const TextStyle> style);

    std::string_view action() const { return _action; }
    void setAction(std::string_view action);

    /// Who gets the action; null without a target, and when the target is gone.
    std::shared_ptr<ActionHandler> target() const { return _target.lock(); }
    /// Whether a target was set: the action of an item without one goes along the responder chain.
    bool hasTarget() const { return _hasTarget; }
    void setTarget(std::weak_ptr<ActionHandler> target);

    bool isEnabled() const { return _isEnabled; }
    void setEnabled(bool isEnabled);

    /// Whether it bears a check mark.
    bool state() const { return _state; }
    void setState(bool state);

    const std::optional<Image>& image() const { return _image; }
    void setImage(std::optional<Image> image);

    std::shared_ptr<Object> representedObject() const override { return _representedObject; }
    void setRepresentedObject(std::shared_ptr<Object> object);

    bool hasSubmenu() const { return _submenu || !_submenuSource.expired(); }
    /// Null without one. Makes it where only its source is set.
    const std::shared_ptr<Menu>& submenu();
    void setSubmenu(std::shared_ptr<Menu> submenu);
    void setSubmenuSource(std::weak_ptr<SubmenuSource> source);

    /// What is shown in place of title and image; null for those.
    const std::shared_ptr<View>& view() const { return _view; }
    void setView(std::shared_ptr<View> view);

    /// The menu that holds it; null outside one.
    Menu* menu() const { return _menu; }

private:
    friend class Menu;
    void tell();

    std::string _title;
    std::shared_ptr<const TextStyle> _style;
    std::string_view _action;
    std::weak_ptr<ActionHandler> _target;
    std::optional<Image> _image;
    std::shared_ptr<Object> _representedObject;
    std::shared_ptr<Menu> _submenu;
    std::weak_ptr<SubmenuSource> _submenuSource;
    std::shared_ptr<View> _view;
    Menu* _menu = nullptr; ///< clears it when it lets go of this item
    bool _isSeparator = false;
    bool _hasTarget = false;
    bool _isEnabled = true;
    bool _state = false;
};

} // namespace brindle
