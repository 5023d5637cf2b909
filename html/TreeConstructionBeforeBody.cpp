#include "html/TreeConstruction.hpp"

// The insertion modes up to the body, but for those of the head's content: sections 13.2.6.4.1 to 13.2.6.4.3 and 13.2.6.4.6 of the HTML
// standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::initial() {
    if (_token.isText()) {
        _token.takeLeadingWhitespace();
        if (_token.text().empty()) {
            return Next::token;
        }
    }
    _document.setMode(Document::Mode::quirks);
    _mode = Mode::beforeHtml;
    return Next::again;
}

TreeConstruction::Next TreeConstruction::beforeHtml() {
    if (_token.isText()) {
        _token.takeLeadingWhitespace();
        if (_token.text().empty()) {
            return Next::token;
        }
    }
    if (_token.isEndTag() && !_token.isEndTagOf({TagId::head, TagId::body, TagId::html, TagId::br})) {
        return Next::token;
    }
    const bool isRoot = _token.isStartTagOf({TagId::html});
    openRoot(isRoot ? _token.keptAttributes() : Attributes());
    _mode = Mode::beforeHead;
    return isRoot ? Next::token : Next::again;
}

void TreeConstruction::openRoot(Attributes attributes) {
    Element& root = _insertion.makeElement(Tag::known(TagId::html), attributes);
    _document.appendChild(&root);
    _open.push(root, 0);
}

TreeConstruction::Next TreeConstruction::beforeHead() {
    if (_token.isText()) {
        _token.takeLeadingWhitespace();
        if (_token.text().empty()) {
            return Next::token;
        }
    }
    if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    }
    if (_token.isEndTag() && !_token.isEndTagOf({TagId::head, TagId::body, TagId::html, TagId::br})) {
        return Next::token;
    }
    const bool isHead = _token.isStartTagOf({TagId::head});
    _head = (isHead ? insertElement() : insertImplied(TagId::head)).element;
    _mode = Mode::inHead;
    return isHead ? Next::token : Next::again;
}

TreeConstruction::Next TreeConstruction::afterHead() {
    if (_token.isText()) {
        _insertion.insertText(_token.takeLeadingWhitespace());
        if (_token.text().empty()) {
            return Next::token;
        }
    }
    if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    }
    if (_token.isStartTagOf({TagId::body})) {
        insertElement();
        _allowsFrameset = false;
        _mode = Mode::inBody;
        return Next::token;
    }
    if (_token.isStartTagOf({TagId::frameset})) {
        insertElement();
        _mode = Mode::inFrameset;
        return Next::token;
    }
    if (_token.isStartTag() && isOfHead()) {
        OpenElement& head = _open.push(*_head, 0);
        const Next next = startOfHead();
        _open.remove(head);
        return next;
    }
    if (_token.isEndTagOf({TagId::templateElement})) {
        return endTemplate();
    }
    const bool isIgnoredEnd = _token.isEndTag() && !_token.isEndTagOf({TagId::body, TagId::html, TagId::br});
    if (isIgnoredEnd || _token.isStartTagOf({TagId::head})) {
        return Next::token;
    }
    insertImplied(TagId::body);
    _mode = Mode::inBody;
    return Next::again;
}

} // namespace brindle::html
