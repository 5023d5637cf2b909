#pragma once

#include "platform/Control.hpp"

#include <string>

namespace brindle {

/// A line of text, for reading or for typing. Thread: main.
class TextField : public Control {
public:
    enum class Color { label, systemGray };

    /// UTF-8.
    const std::string& stringValue() const { return _stringValue; }
    void setStringValue(std::string value) { set(_stringValue, std::move(value)); }

    /// Whether a person can type into it, which nobody can unless told; what stands in it can be selected and copied in any case.
    bool isEditable() const { return _isEditable; }
    void setEditable(bool isEditable) { set(_isEditable, isEditable); }

    /// Of the letters.
    Color textColor() const { return _textColor; }
    void setTextColor(Color color) { set(_textColor, color); }

    /// Without one, what is behind the field shows.
    bool drawsBackground() const { return _drawsBackground; }
    void setDrawsBackground(bool draws) { set(_drawsBackground, draws); }

private:
    std::string _stringValue;
    Color _textColor = Color::label;
    bool _isEditable = false;
    bool _drawsBackground = true;
};

} // namespace brindle
