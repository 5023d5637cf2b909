#include "html/AsciiText.hpp"
#include "html/TreeConstruction.hpp"

// What comes behind the body, and framesets: sections 13.2.6.4.19 to 13.2.6.4.23 of the HTML standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::afterBody() {
    if (_token.isEndOfFile()) {
        return Next::token;
    }
    if (_token.isEndTagOf({TagId::html})) {
        if (!_context) {
            _mode = Mode::afterAfterBody;
        }
        return Next::token;
    }
    return inBodyAgain();
}

TreeConstruction::Next TreeConstruction::afterAfterBody() {
    return _token.isEndOfFile() ? Next::token : inBodyAgain();
}

/// White space and another `html` tag change nothing, and all else leads back into the body.
TreeConstruction::Next TreeConstruction::inBodyAgain() {
    if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    }
    if (_token.isText()) {
        insertWithFormatting(_token.takeLeadingWhitespace());
        if (_token.text().empty()) {
            return Next::token;
        }
    }
    _mode = Mode::inBody;
    return Next::again;
}

TreeConstruction::Next TreeConstruction::inFrameset() {
    if (_token.isText()) {
        _token.keepWhitespaceOnly();
        _insertion.insertText(_token.text());
    } else if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    } else if (_token.isStartTagOf({TagId::frameset})) {
        insertElement();
    } else if (_token.isEndTagOf({TagId::frameset}) && !_open.holdsRootOnly()) {
        _open.pop();
        if (!_context && _open.current().id != TagId::frameset) {
            _mode = Mode::afterFrameset;
        }
    } else if (_token.isStartTagOf({TagId::frame})) {
        insertVoid();
    } else if (_token.isStartTagOf({TagId::noframes})) {
        return startOfHead();
    }
    return Next::token;
}

TreeConstruction::Next TreeConstruction::afterFrameset() {
    if (_token.isText()) {
        _token.keepWhitespaceOnly();
        _insertion.insertText(_token.text());
    } else if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    } else if (_token.isEndTagOf({TagId::html})) {
        _mode = Mode::afterAfterFrameset;
    } else if (_token.isStartTagOf({TagId::noframes})) {
        return startOfHead();
    }
    return Next::token;
}

TreeConstruction::Next TreeConstruction::afterAfterFrameset() {
    if (_token.isText()) {
        _token.keepWhitespaceOnly();
        insertWithFormatting(_token.text());
    } else if (_token.isStartTagOf({TagId::html})) {
        return inBody();
    } else if (_token.isStartTagOf({TagId::noframes})) {
        return startOfHead();
    }
    return Next::token;
}

} // namespace brindle::html
