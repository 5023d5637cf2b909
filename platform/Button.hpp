#pragma once

#include "platform/Control.hpp"

#include <string>

namespace brindle {

/// A button; whoever shows it calls its controller when it is clicked. Thread: main.
class Button : public Control {
public:
    /// UTF-8.
    const std::string& title() const { return _title; }
    void setTitle(std::string title) { set(_title, std::move(title)); }

private:
    std::string _title;
};

} // namespace brindle
