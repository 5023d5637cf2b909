#include "html/TreeConstruction.hpp"

// The head's content, and texts: sections 13.2.6.4.4, 13.2.6.4.5 and 13.2.6.4.8 of the HTML standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::inHead() {
    if (_token.isText()) {
        _insertion.insertText(_token.takeLeadingWhitespace());
        if (_token.text().empty()) {
            return Next::token;
        }
    } else if (_token.isStartTag()) {
        if (isOfHead()) {
            return startOfHead();
        }
        if (_token.id() == TagId::html) {
            return inBody();
        }
        if (_token.id() == TagId::noscript) {
            insertElement();
            _mode = Mode::inHeadNoscript;
            return Next::token;
        }
        if (_token.id() == TagId::head) {
            return Next::token;
        }
    } else if (_token.isEndTagOf({TagId::templateElement})) {
        return endTemplate();
    } else if (_token.isEndTagOf({TagId::head})) {
        _open.pop();
        _mode = Mode::afterHead;
        return Next::token;
    } else if (_token.isEndTag() && !_token.isEndTagOf({TagId::body, TagId::html, TagId::br})) {
        return Next::token;
    }
    _open.pop();
    _mode = Mode::afterHead;
    return Next::again;
}

TreeConstruction::Next TreeConstruction::inHeadNoscript() {
    if (_token.isText()) {
        _insertion.insertText(_token.takeLeadingWhitespace());
        if (_token.text().empty()) {
            return Next::token;
        }
    } else if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    } else if (_token.isStartTagOf({TagId::basefont, TagId::bgsound, TagId::link, TagId::meta, TagId::noframes, TagId::style})) {
        return startOfHead();
    } else if (_token.isEndTagOf({TagId::noscript})) {
        _open.pop();
        _mode = Mode::inHead;
        return Next::token;
    } else if (_token.isStartTagOf({TagId::head, TagId::noscript}) || (_token.isEndTag() && _token.id() != TagId::br)) {
        return Next::token;
    }
    _open.pop();
    _mode = Mode::inHead;
    return Next::again;
}

TreeConstruction::Next TreeConstruction::inText() {
    if (_token.isText()) {
        _insertion.insertText(_token.text());
        return Next::token;
    }
    _open.pop();
    _mode = _modeBehindText;
    return _token.isEndOfFile() ? Next::again : Next::token;
}

} // namespace brindle::html
