#include "html/AsciiText.hpp"
#include "html/BodyRules.hpp"

// Section 13.2.6.4.7 of the HTML standard: the rules for start tags in a body.

namespace brindle::html {

BodyRules::Next BodyRules::startRootAgain() {
    if (!_open.has(TagId::templateElement)) {
        _rootAttributes.add(*_open.root().element, _token.token().attributes);
    }
    return Next::token;
}

/// The `body` element where it is the second on the stack, else null.
OpenElement* BodyRules::openBody() const noexcept {
    OpenElement* const second = _open.root().above;
    return second != nullptr && second->id == TagId::body ? second : nullptr;
}

BodyRules::Next BodyRules::startBodyAgain() {
    OpenElement* const body = openBody();
    if (body != nullptr && !_open.has(TagId::templateElement)) {
        _allowsFrameset = false;
        _bodyAttributes.add(*body->element, _token.token().attributes);
    }
    return Next::token;
}

BodyRules::Next BodyRules::startFrameset() {
    OpenElement* const body = openBody();
    if (body == nullptr || !_allowsFrameset) {
        return Next::token;
    }
    Element& element = *body->element;
    _open.popThrough(*body);
    if (element.parent() != nullptr) {
        element.parent()->removeChild(&element);
    }
    insertElement();
    _mode = Mode::inFrameset;
    return Next::token;
}

BodyRules::Next BodyRules::startBlock() {
    closeParagraph();
    insertElement();
    return Next::token;
}

BodyRules::Next BodyRules::startHeading() {
    closeParagraph();
    if ((_open.current().traits & traits::heading) != 0) {
        _open.pop();
    }
    insertElement();
    return Next::token;
}

BodyRules::Next BodyRules::startPreformatted() {
    closeParagraph();
    insertElement();
    _dropsLineFeed = true;
    _allowsFrameset = false;
    return Next::token;
}

BodyRules::Next BodyRules::startForm() {
    const bool isInTemplate = _open.has(TagId::templateElement);
    if (_form != nullptr && !isInTemplate) {
        return Next::token;
    }
    closeParagraph();
    Element* const form = insertElement().element;
    if (!isInTemplate) {
        _form = form;
    }
    return Next::token;
}

BodyRules::Next BodyRules::startListItem() {
    _allowsFrameset = false;
    // The standard looks down the stack for an item, up to the first special element; items are special themselves.
    const OpenElement& nearest = *_open.current().boundary(Boundary::listItem);
    const bool isDescription = nearest.id == TagId::dd || nearest.id == TagId::dt;
    if (_token.id() == TagId::li ? nearest.id == TagId::li : isDescription) {
        _open.popThrough(nearest);
    }
    closeParagraph();
    insertElement();
    return Next::token;
}

BodyRules::Next BodyRules::startPlaintext() {
    closeParagraph();
    insertElement();
    _tokeniser.setState(Tokeniser::State::plaintext);
    return Next::token;
}

BodyRules::Next BodyRules::startButton() {
    if (const OpenElement* const button = _open.within(TagId::button, Boundary::scope)) {
        _open.popThrough(*button);
    }
    _formatting.reconstruct();
    insertElement();
    _allowsFrameset = false;
    return Next::token;
}

BodyRules::Next BodyRules::startAnchor() {
    ActiveFormattingElements& active = _formatting.active();
    if (const FormattingElement* const anchor = active.lastOf(TagId::a)) {
        const Element* const element = anchor->element;
        _formatting.close(TagId::a);
        // Out of scope, it is still in the list.
        FormattingElement* const left = active.lastOf(TagId::a);
        if (left != nullptr && left->element == element) {
            OpenElement* const open = left->open;
            active.remove(*left);
            if (open != nullptr) {
                _open.remove(*open);
            }
        }
    }
    return startFormatting();
}

BodyRules::Next BodyRules::startFormatting() {
    _formatting.reconstruct();
    _formatting.active().push(insertElement());
    return Next::token;
}

BodyRules::Next BodyRules::startNobr() {
    _formatting.reconstruct();
    if (_open.within(TagId::nobr, Boundary::scope) != nullptr) {
        endFormatting();
    }
    return startFormatting();
}

BodyRules::Next BodyRules::startMarked() {
    _formatting.reconstruct();
    insertElement();
    _formatting.active().pushMarker();
    _allowsFrameset = false;
    return Next::token;
}

BodyRules::Next BodyRules::startTable() {
    if (_document.mode() != Document::Mode::quirks) {
        closeParagraph();
    }
    insertElement();
    _allowsFrameset = false;
    _mode = Mode::inTable;
    return Next::token;
}

BodyRules::Next BodyRules::startVoid() {
    if (_token.id() == TagId::image) {
        _token.rename(TagId::img);
    }
    _formatting.reconstruct();
    insertVoid();
    _allowsFrameset = false;
    return Next::token;
}

BodyRules::Next BodyRules::startVoidInMedia() {
    insertVoid();
    return Next::token;
}

/// Whether the tag is of an `input` that is not shown.
bool BodyRules::isHiddenInput() const noexcept {
    const Attribute* const type = _token.find("type");
    return type != nullptr && equalsIgnoringAsciiCase(type->value, "hidden");
}

BodyRules::Next BodyRules::startInput() {
    if (isInFragmentOf(TagId::select)) {
        return Next::token;
    }
    closeSelect();
    _formatting.reconstruct();
    insertVoid();
    _allowsFrameset = _allowsFrameset && isHiddenInput();
    return Next::token;
}

BodyRules::Next BodyRules::startRule() {
    closeParagraph();
    if (_open.within(TagId::select, Boundary::scope) != nullptr) {
        closeImplied();
    }
    insertVoid();
    _allowsFrameset = false;
    return Next::token;
}

BodyRules::Next BodyRules::startTextArea() {
    readTextAs(Tokeniser::State::rcdata);
    _dropsLineFeed = true;
    _allowsFrameset = false;
    return Next::token;
}

/// For `xmp`, which is a block, and for `iframe` and `noembed`.
BodyRules::Next BodyRules::startRawText() {
    if (_token.id() == TagId::xmp) {
        closeParagraph();
        _formatting.reconstruct();
    }
    if (_token.id() != TagId::noembed) {
        _allowsFrameset = false;
    }
    return readTextAs(Tokeniser::State::rawtext);
}

/// Closes a `select` that is open in the scope. True if there was one.
bool BodyRules::closeSelect() {
    const OpenElement* const select = _open.within(TagId::select, Boundary::scope);
    if (select != nullptr) {
        _open.popThrough(*select);
    }
    return select != nullptr;
}

/// A `select` within a `select` only closes it.
BodyRules::Next BodyRules::startSelect() {
    if (isInFragmentOf(TagId::select) || closeSelect()) {
        return Next::token;
    }
    _formatting.reconstruct();
    insertElement();
    _allowsFrameset = false;
    return Next::token;
}

/// For `option` and `optgroup`, the first of which may stand in the other.
BodyRules::Next BodyRules::startOption() {
    if (_open.within(TagId::select, Boundary::scope) != nullptr) {
        closeImplied(_token.id() == TagId::option ? TagId::optgroup : TagId::unknown);
    } else if (_open.current().id == TagId::option) {
        _open.pop();
    }
    _formatting.reconstruct();
    insertElement();
    return Next::token;
}

/// An `rtc` may hold an `rp` or `rt`.
BodyRules::Next BodyRules::startRubyPart() {
    if (_open.within(TagId::ruby, Boundary::scope) != nullptr) {
        const bool mayBeHeld = _token.id() == TagId::rp || _token.id() == TagId::rt;
        closeImplied(mayBeHeld ? TagId::rtc : TagId::unknown);
    }
    insertElement();
    return Next::token;
}

BodyRules::Next BodyRules::startForeign() {
    _formatting.reconstruct();
    insertForeign(_token.id() == TagId::svg ? Element::Vocabulary::svg : Element::Vocabulary::mathMl);
    return Next::token;
}

BodyRules::Next BodyRules::startOrdinary() {
    _formatting.reconstruct();
    insertElement();
    return Next::token;
}

} // namespace brindle::html
