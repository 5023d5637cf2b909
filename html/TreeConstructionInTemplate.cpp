#include "html/TreeConstruction.hpp"

// Section 13.2.6.4.18 of the HTML standard.

namespace brindle::html {

TreeConstruction::Next TreeConstruction::inTemplate() {
    if (_token.isText()) {
        return inBody();
    }
    if (_token.isEndTag()) {
        return _token.id() == TagId::templateElement ? endTemplate() : Next::token;
    }
    if (_token.isEndOfFile()) {
        return endTemplateAtEndOfFile();
    }
    if (isOfHead()) {
        return startOfHead();
    }
    switch (_token.id()) {
    case TagId::caption:
    case TagId::colgroup:
    case TagId::tbody:
    case TagId::tfoot:
    case TagId::thead:
        return goOnInTemplateAs(Mode::inTable);
    case TagId::col:
        return goOnInTemplateAs(Mode::inColumnGroup);
    case TagId::tr:
        return goOnInTemplateAs(Mode::inTableBody);
    case TagId::td:
    case TagId::th:
        return goOnInTemplateAs(Mode::inRow);
    default:
        return goOnInTemplateAs(Mode::inBody);
    }
}

/// The first tag tells what kind of content the template has.
TreeConstruction::Next TreeConstruction::goOnInTemplateAs(Mode mode) {
    _templateModes.back() = mode;
    _mode = mode;
    return Next::again;
}

} // namespace brindle::html
