#include "html/TreeConstruction.hpp"

// Table bodies, rows and cells: sections 13.2.6.4.13 to 13.2.6.4.15 of the HTML standard.

namespace brindle::html {

/// Whether it is what a table is made of.
bool TreeConstruction::isPartOfTable(TagId id) noexcept {
    switch (id) {
    case TagId::caption:
    case TagId::col:
    case TagId::colgroup:
    case TagId::tbody:
    case TagId::td:
    case TagId::tfoot:
    case TagId::th:
    case TagId::thead:
    case TagId::tr:
        return true;
    default:
        return false;
    }
}

/// For tags whose rules in a table part are those of a table: text and the like, and what is not told apart.
TreeConstruction::Next TreeConstruction::inTableBody() {
    const TagId id = _token.isStartTag() || _token.isEndTag() ? _token.id() : TagId::unknown;
    const bool isBodyTag = id == TagId::tbody || id == TagId::tfoot || id == TagId::thead;
    if (_token.isStartTag()) {
        if (id == TagId::tr || id == TagId::th || id == TagId::td) {
            clearBackTo({TagId::tbody, TagId::tfoot, TagId::thead});
            const bool isRow = id == TagId::tr;
            isRow ? insertElement() : insertImplied(TagId::tr);
            _mode = Mode::inRow;
            return isRow ? Next::token : Next::again;
        }
        return isPartOfTable(id) ? closeTableBody(Next::again) : inTable();
    }
    if (id == TagId::table) {
        return closeTableBody(Next::again);
    }
    if (isBodyTag) {
        return _open.within(id, Boundary::tableScope) != nullptr ? closeTableBody(Next::token) : Next::token;
    }
    const bool isIgnored = id == TagId::body || id == TagId::html || isPartOfTable(id);
    return isIgnored ? Next::token : inTable();
}

TreeConstruction::Next TreeConstruction::closeTableBody(Next next) {
    if (!_open.hasAnyWithin({TagId::tbody, TagId::thead, TagId::tfoot}, Boundary::tableScope)) {
        return Next::token;
    }
    clearBackTo({TagId::tbody, TagId::tfoot, TagId::thead});
    _open.pop();
    _mode = Mode::inTable;
    return next;
}

TreeConstruction::Next TreeConstruction::inRow() {
    const TagId id = _token.isStartTag() || _token.isEndTag() ? _token.id() : TagId::unknown;
    const bool isCell = id == TagId::td || id == TagId::th;
    if (_token.isStartTag()) {
        if (isCell) {
            clearBackTo({TagId::tr});
            insertElement();
            _mode = Mode::inCell;
            _formatting.active().pushMarker();
            return Next::token;
        }
        return isPartOfTable(id) ? closeRow(Next::again) : inTable();
    }
    switch (id) {
    case TagId::tr:
        return closeRow(Next::token);
    case TagId::table:
        return closeRow(Next::again);
    case TagId::tbody:
    case TagId::tfoot:
    case TagId::thead:
        return _open.within(id, Boundary::tableScope) != nullptr ? closeRow(Next::again) : Next::token;
    default:
        return id == TagId::body || id == TagId::html || isPartOfTable(id) ? Next::token : inTable();
    }
}

TreeConstruction::Next TreeConstruction::closeRow(Next next) {
    if (_open.within(TagId::tr, Boundary::tableScope) == nullptr) {
        return Next::token;
    }
    clearBackTo({TagId::tr});
    _open.pop();
    _mode = Mode::inTableBody;
    return next;
}

TreeConstruction::Next TreeConstruction::inCell() {
    if (_token.isStartTag()) {
        return isPartOfTable(_token.id()) ? closeCell(Next::again) : inBody();
    }
    if (!_token.isEndTag()) {
        return inBody();
    }
    switch (_token.id()) {
    case TagId::td:
    case TagId::th:
        return _open.within(_token.id(), Boundary::tableScope) != nullptr ? closeCell(Next::token) : Next::token;
    case TagId::table:
    case TagId::tbody:
    case TagId::tfoot:
    case TagId::thead:
    case TagId::tr:
        return _open.within(_token.id(), Boundary::tableScope) != nullptr ? closeCell(Next::again) : Next::token;
    case TagId::body:
    case TagId::caption:
    case TagId::col:
    case TagId::colgroup:
    case TagId::html:
        return Next::token;
    default:
        return inBody();
    }
}

/// Closes the cell. A scope has no more than one.
TreeConstruction::Next TreeConstruction::closeCell(Next next) {
    const OpenElement* const data = _open.within(TagId::td, Boundary::tableScope);
    const OpenElement* const cell = data != nullptr ? data : _open.within(TagId::th, Boundary::tableScope);
    if (cell == nullptr) {
        return Next::token;
    }
    _open.popThrough(*cell);
    _formatting.active().clearToLastMarker();
    _mode = Mode::inRow;
    return next;
}

} // namespace brindle::html
