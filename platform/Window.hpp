#pragma once

#include "platform/Control.hpp"
#include "platform/Size.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// Is told of a window. Thread: main.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;
    virtual void windowWillClose() {}
};

/// A window of the desktop. Thread: main.
class Window {
public:
    /// The bits of a style mask.
    enum StyleMask : unsigned { titled = 1, closable = 2, miniaturizable = 4, resizable = 8, utility = 16 };
    /// Where a window stands among others.
    enum class Level { normal = 0, floating = 3 };

    virtual ~Window() = default;
    virtual void setDelegate(std::weak_ptr<WindowDelegate> delegate) = 0;
    virtual void setTitle(const std::string& title) = 0;
    virtual void setLevel(Level level) = 0;
    virtual void setStyleMask(unsigned mask) = 0;
    /// Under what name the frame is kept from now on.
    virtual void setFrameAutosaveName(std::string_view name) = 0;
    /// Takes the frame that is kept under a name, if there is one.
    virtual void setFrameUsingName(std::string_view name) = 0;
    /// What is inside gets this size; the top edge stays where it is, and the change is animated where the desktop does that.
    virtual void setContentSize(Size size) = 0;
    /// Gives the keyboard to what shows a control.
    virtual void makeFirstResponder(const Control& control) = 0;
    /// Shows it in front and gives it the keyboard.
    virtual void show() = 0;
    /// Takes it from the screen; tells the delegate before, as when a person closes it. Nothing where it is not there.
    virtual void close() = 0;
    virtual bool isVisible() const = 0;
};

} // namespace brindle
