#include <algorithm>

#include "html/AsciiText.hpp"
#include "html/ForeignNames.hpp"
#include "html/TreeConstruction.hpp"
#include "html/Utf8.hpp"

// SVG and MathML: section 13.2.6.5 of the HTML standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::inForeign() {
    if (_token.isText()) {
        _allowsFrameset = _allowsFrameset && std::all_of(_token.text().begin(), _token.text().end(),
                                                 [](char byte) { return byte == '\0' || isAsciiWhitespace(byte); });
        _token.replaceNulls(replacementCharacter);
        _insertion.insertText(_token.text());
        return Next::token;
    }
    if (breaksOut()) {
        return breakOut();
    }
    return _token.isStartTag() ? startInForeign() : endInForeign();
}

/// Whether the tag ends all foreign content.
bool TreeConstruction::breaksOut() const noexcept {
    if (_token.isEndTag()) {
        return _token.id() == TagId::br || _token.id() == TagId::p;
    }
    if (_token.id() == TagId::font) {
        return _token.find("color") != nullptr || _token.find("face") != nullptr || _token.find("size") != nullptr;
    }
    return (traitsOfHtml(_token.id()) & traits::breaksOutOfForeign) != 0;
}

TreeConstruction::Next TreeConstruction::breakOut() {
    constexpr ElementTraits points = traits::htmlIntegrationPoint | traits::mathMlTextIntegrationPoint;
    while (!_open.current().isHtml() && (_open.current().traits & points) == 0) {
        _open.pop();
    }
    return processByMode();
}

TreeConstruction::Next TreeConstruction::startInForeign() {
    insertForeign(adjustedCurrent().element->vocabulary());
    return Next::token;
}

TreeConstruction::Next TreeConstruction::endInForeign() {
    if (_open.holdsRootOnly()) {
        return Next::token;
    }
    if (const OpenElement* const element = _open.foreignWithin(_token.nameIndex())) {
        _open.popThrough(*element);
        return Next::token;
    }
    return processByMode();
}

} // namespace brindle::html
