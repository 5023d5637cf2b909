#pragma once

#include "platform/Control.hpp"

#include <functional>
#include <string>
#include <utility>

namespace brindle {

/// A button: one that is pressed, or one that stays on or off. Thread: main.
class Button : public Control {
public:
    enum class Kind { push, checkBox, radio };

    explicit Button(Kind kind = Kind::push, std::string title = {}) : _kind(kind), _title(std::move(title)) {}

    Kind kind() const { return _kind; }

    /// UTF-8.
    const std::string& title() const { return _title; }
    void setTitle(std::string title) { set(_title, std::move(title)); }

    /// Whether it is on; a push button never is.
    bool state() const { return _state; }
    void setState(bool state) { set(_state, state); }

    /// What a press does, once the state is the new one. Where it is empty, whoever shows the button calls its controller.
    std::function<void()> onPress;

    /// A person presses it: a check box changes its state, a radio button comes on.
    void press() {
        if (_kind != Kind::push)
            setState(_kind == Kind::radio || !_state);
        // A copy: what it does may replace it.
        if (const auto pressed = onPress)
            pressed();
    }

private:
    const Kind _kind;
    std::string _title;
    bool _state = false;
};

} // namespace brindle
