#include <algorithm>

#include "html/AsciiText.hpp"
#include "html/TreeConstruction.hpp"

// Tables, their texts, captions and column groups: sections 13.2.6.4.9 to 13.2.6.4.12 of the HTML standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::inTable() {
    const OpenElement& current = _open.current();
    if (_token.isText() && ((current.traits & traits::fosters) != 0 || current.id == TagId::templateElement)) {
        _token.replaceNulls({});
        _tableText.push_back(_token.text());
        return Next::token;
    }
    if (_token.isStartTag()) {
        return inTableStartTag();
    }
    return _token.isEndTag() ? inTableEndTag() : inTableOtherwise();
}

/// The texts of a table that another token has ended. If all of it is white space it stays, else it goes before the table.
void TreeConstruction::flushTableText() {
    if (_tableText.empty()) {
        return;
    }
    const bool stays = std::all_of(_tableText.begin(), _tableText.end(), isBlank);
    for (const std::string_view text : _tableText) {
        if (stays) {
            _insertion.insertText(text);
        } else {
            _insertion.setFosters(true);
            insertWithFormatting(text);
            _insertion.setFosters(false);
            _allowsFrameset = false;
        }
    }
    _tableText.clear();
}

/// "Anything else": what does not belong into a table goes before it.
TreeConstruction::Next TreeConstruction::inTableOtherwise() {
    _insertion.setFosters(true);
    const Next next = inBody();
    _insertion.setFosters(false);
    return next;
}

/// Pops elements until the current node is one of these, a template or the root.
void TreeConstruction::clearBackTo(std::initializer_list<TagId> ids) {
    const auto isContext = [&](TagId id) {
        return id == TagId::html || id == TagId::templateElement || std::find(ids.begin(), ids.end(), id) != ids.end();
    };
    while (!isContext(_open.current().id)) {
        _open.pop();
    }
}

TreeConstruction::Next TreeConstruction::inTableStartTag() {
    switch (_token.id()) {
    case TagId::caption:
        clearBackTo({TagId::table});
        _formatting.active().pushMarker();
        insertElement();
        _mode = Mode::inCaption;
        return Next::token;
    case TagId::colgroup:
        clearBackTo({TagId::table});
        insertElement();
        _mode = Mode::inColumnGroup;
        return Next::token;
    case TagId::col:
        clearBackTo({TagId::table});
        insertImplied(TagId::colgroup);
        _mode = Mode::inColumnGroup;
        return Next::again;
    case TagId::tbody:
    case TagId::tfoot:
    case TagId::thead:
        clearBackTo({TagId::table});
        insertElement();
        _mode = Mode::inTableBody;
        return Next::token;
    case TagId::td:
    case TagId::th:
    case TagId::tr:
        clearBackTo({TagId::table});
        insertImplied(TagId::tbody);
        _mode = Mode::inTableBody;
        return Next::again;
    case TagId::table:
        return closeTable() ? Next::again : Next::token;
    case TagId::style:
    case TagId::script:
    case TagId::templateElement:
        return startOfHead();
    case TagId::input:
        return startInputInTable();
    case TagId::form:
        return startFormInTable();
    default:
        return inTableOtherwise();
    }
}

TreeConstruction::Next TreeConstruction::startInputInTable() {
    if (!isHiddenInput()) {
        return inTableOtherwise();
    }
    insertVoid();
    return Next::token;
}

/// A form in a table holds nothing.
TreeConstruction::Next TreeConstruction::startFormInTable() {
    if (_form == nullptr && !_open.has(TagId::templateElement)) {
        _form = insertElement().element;
        _open.pop();
    }
    return Next::token;
}

TreeConstruction::Next TreeConstruction::inTableEndTag() {
    switch (_token.id()) {
    case TagId::table:
        closeTable();
        return Next::token;
    case TagId::body:
    case TagId::caption:
    case TagId::col:
    case TagId::colgroup:
    case TagId::html:
    case TagId::tbody:
    case TagId::td:
    case TagId::tfoot:
    case TagId::th:
    case TagId::thead:
    case TagId::tr:
        return Next::token;
    case TagId::templateElement:
        return endTemplate();
    default:
        return inTableOtherwise();
    }
}

/// Closes the innermost table. False if none is in the scope.
bool TreeConstruction::closeTable() {
    const OpenElement* const table = _open.within(TagId::table, Boundary::tableScope);
    if (table == nullptr) {
        return false;
    }
    _open.popThrough(*table);
    resetMode();
    return true;
}

TreeConstruction::Next TreeConstruction::inCaption() {
    if (_token.isEndTagOf({TagId::caption})) {
        return closeCaption(Next::token);
    }
    if (_token.isEndTagOf({TagId::table}) || (_token.isStartTag() && isPartOfTable(_token.id()))) {
        return closeCaption(Next::again);
    }
    if (_token.isEndTag() && (isPartOfTable(_token.id()) || _token.isEndTagOf({TagId::body, TagId::html}))) {
        return Next::token;
    }
    return inBody();
}

TreeConstruction::Next TreeConstruction::closeCaption(Next next) {
    const OpenElement* const caption = _open.within(TagId::caption, Boundary::tableScope);
    if (caption == nullptr) {
        return Next::token;
    }
    _open.popThrough(*caption);
    _formatting.active().clearToLastMarker();
    _mode = Mode::inTable;
    return next;
}

TreeConstruction::Next TreeConstruction::inColumnGroup() {
    if (_token.isText()) {
        _insertion.insertText(_token.takeLeadingWhitespace());
        if (_token.text().empty()) {
            return Next::token;
        }
    } else if (_token.isStartTagOf({TagId::html}) || _token.isEndOfFile()) {
        return inBody();
    } else if (_token.isStartTagOf({TagId::col})) {
        insertVoid();
        return Next::token;
    } else if (_token.isStartTagOf({TagId::templateElement})) {
        return startTemplate();
    } else if (_token.isEndTagOf({TagId::templateElement})) {
        return endTemplate();
    } else if (_token.isEndTagOf({TagId::col})) {
        return Next::token;
    }
    if (_open.current().id != TagId::colgroup) {
        return Next::token;
    }
    _open.pop();
    _mode = Mode::inTable;
    return _token.isEndTagOf({TagId::colgroup}) ? Next::token : Next::again;
}

} // namespace brindle::html
