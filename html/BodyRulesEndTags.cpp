#include "html/BodyRules.hpp"

// Section 13.2.6.4.7 of the HTML standard: the rules for end tags in a body.

namespace brindle::html {

/// "Generate implied end tags", except for `kept`.
void BodyRules::closeImplied(TagId kept) {
    while ((_open.current().traits & traits::impliedEnd) != 0 && _open.current().id != kept) {
        _open.pop();
    }
}

void BodyRules::closeParagraph() {
    if (const OpenElement* const paragraph = _open.within(TagId::p, Boundary::buttonScope)) {
        _open.popThrough(*paragraph);
    }
}

/// For `body` and `html`.
BodyRules::Next BodyRules::endBody() {
    if (_open.within(TagId::body, Boundary::scope) == nullptr) {
        return Next::token;
    }
    _mode = Mode::afterBody;
    return _token.id() == TagId::html ? Next::again : Next::token;
}

/// Closes the newest element of the tag, with all that is open in it.
void BodyRules::closeWithin(Boundary scope) {
    if (const OpenElement* const element = _open.within(_token.id(), scope)) {
        _open.popThrough(*element);
    }
}

BodyRules::Next BodyRules::endBlock() {
    closeWithin(Boundary::scope);
    return Next::token;
}

BodyRules::Next BodyRules::endListItem() {
    closeWithin(Boundary::listItemScope);
    return Next::token;
}

BodyRules::Next BodyRules::endForm() {
    if (_open.has(TagId::templateElement)) {
        return endBlock();
    }
    const Element* const form = _form;
    _form = nullptr;
    // The form that was opened last is the only one that the pointer can lead to.
    OpenElement* const open = _open.within(TagId::form, Boundary::scope);
    if (form == nullptr || open == nullptr || open->element != form) {
        return Next::token;
    }
    closeImplied();
    _open.remove(*open);
    return Next::token;
}

BodyRules::Next BodyRules::endParagraph() {
    if (_open.within(TagId::p, Boundary::buttonScope) == nullptr) {
        insertImplied(TagId::p);
    }
    closeParagraph();
    return Next::token;
}

BodyRules::Next BodyRules::endHeading() {
    if (!_open.hasAnyWithin({TagId::h1, TagId::h2, TagId::h3, TagId::h4, TagId::h5, TagId::h6}, Boundary::scope)) {
        return Next::token;
    }
    while ((_open.current().traits & traits::heading) == 0) {
        _open.pop();
    }
    _open.pop();
    return Next::token;
}

BodyRules::Next BodyRules::endFormatting() {
    return _formatting.close(_token.id()) ? Next::token : endOrdinary();
}

BodyRules::Next BodyRules::endMarked() {
    if (const OpenElement* const marked = _open.within(_token.id(), Boundary::scope)) {
        _open.popThrough(*marked);
        _formatting.active().clearToLastMarker();
    }
    return Next::token;
}

/// `</br>` is taken for `<br>`.
BodyRules::Next BodyRules::endBreak() {
    _formatting.reconstruct();
    _insertion.insert(_insertion.makeElement(Tag::known(TagId::br), {}));
    _allowsFrameset = false;
    return Next::token;
}

/// "Any other end tag".
BodyRules::Next BodyRules::endOrdinary() {
    if (const OpenElement* const element = _open.within(_token.id(), _token.nameIndex(), Boundary::special)) {
        _open.popThrough(*element);
    }
    return Next::token;
}

} // namespace brindle::html
