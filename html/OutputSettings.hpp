#pragma once

namespace brindle::html {

/// How a document is written. The output is always UTF-8, and of the named references only those of the base mode are used:
/// `&amp;`, `&lt;`, `&gt;`, `&quot;` and `&nbsp;`.
class OutputSettings {
public:
    enum class Syntax { html, xml };

    /// Which characters are written as named references.
    enum class EscapeMode { base };

    /// How text is encoded on output.
    enum class Encoder { utf8 };

    EscapeMode escapeMode() const noexcept { return EscapeMode::base; }
    Encoder encoder() const noexcept { return Encoder::utf8; }

    /// New lines and indentation by depth, with runs of white space made one blank.
    bool prettyPrint() const noexcept { return _prettyPrint; }
    void setPrettyPrint(bool on) noexcept { _prettyPrint = on; }

    /// Under pretty printing, treats every element as one that is formatted as a block.
    bool outline() const noexcept { return _outline; }
    void setOutline(bool on) noexcept { _outline = on; }

    /// Blanks per level of depth, 0 to 255.
    unsigned indentAmount() const noexcept { return _indentAmount; }
    void setIndentAmount(unsigned char amount) noexcept { _indentAmount = amount; }

    Syntax syntax() const noexcept { return _syntax; }
    void setSyntax(Syntax syntax) noexcept { _syntax = syntax; }

private:
    bool _prettyPrint = true;
    bool _outline = false;
    unsigned char _indentAmount = 1;
    Syntax _syntax = Syntax::html;
};

} // namespace brindle::html
