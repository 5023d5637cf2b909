#pragma once

#include "platform/Control.hpp"

#include <string>

namespace brindle {

/// What letters are drawn with.
struct Font {
    std::string name; ///< empty: the system font
    double size = 0;  ///< points

    friend bool operator==(const Font&, const Font&) = default;
};

/// A text of many lines, for reading. Thread: main.
class TextView : public Control {
public:
    /// UTF-8.
    const std::string& string() const { return _string; }
    void setString(std::string text) { set(_string, std::move(text)); }

    /// Whether parts of it may look different from others.
    bool isRichText() const { return _isRichText; }
    void setRichText(bool isRichText) { set(_isRichText, isRichText); }

    /// Whether all of it has the system's colour of texts, by light and by dark.
    bool usesTextColor() const { return _usesTextColor; }
    void setUsesTextColor(bool uses) { set(_usesTextColor, uses); }

    const Font& font() const { return _font; }
    void setFont(Font font) { set(_font, std::move(font)); }

private:
    std::string _string;
    bool _isRichText = false;
    bool _usesTextColor = false;
    Font _font;
};

} // namespace brindle
