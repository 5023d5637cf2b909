#include "html/ConstructionState.hpp"

#include <algorithm>
#include <vector>

#include "html/ForeignNames.hpp"

// What the rules of several insertion modes share: sections 13.2.4.1, 13.2.6.1, 13.2.6.2 and 13.2.6.4.4 of the HTML standard.

namespace brindle::html {

namespace {

/// Short texts may reopen this many formatting elements, however short they are.
constexpr std::size_t leastReopenable = 4096;

} // namespace

ConstructionState::ConstructionState(Document& document, ParseSettings settings, ParseErrorList& errors)
    : _document(document), _errors(errors), _tokeniser(document.source().text(), document.arena(), errors, settings),
      _selectedContent(document.arena()), _open(_selectedContent), _insertion(document, _open),
      _formatting(_insertion, _open, std::max(leastReopenable, document.source().text().size())), _token(document) {}

Element& ConstructionState::makeElement() {
    return _insertion.makeElement(_token.tag(), _token.keptAttributes());
}

/// "Insert an HTML element for the token".
OpenElement& ConstructionState::insertElement() {
    return _insertion.insertAndOpen(makeElement(), _token.nameIndex());
}

/// The same for a tag that is not there.
OpenElement& ConstructionState::insertImplied(TagId id) {
    return _insertion.insertAndOpen(_insertion.makeElement(Tag::known(id), {}), 0);
}

/// Inserts an element for the token that is closed at once.
void ConstructionState::insertVoid() {
    _insertion.insert(makeElement());
    _token.acknowledgeSolidus();
}

/// "Insert a foreign element for the token", with its names adjusted.
void ConstructionState::insertForeign(Element::Vocabulary vocabulary) {
    const std::string_view name = _token.tag().name();
    const std::string_view adjusted = vocabulary == Element::Vocabulary::svg ? adjustedSvgTagName(name) : name;
    TagTable& tags = _document.tags();
    const Tag& tag = adjusted == name ? _token.tag() : tags[tags.intern(adjusted)];
    std::vector<Attribute> attributes(_token.token().attributes.begin(), _token.token().attributes.end());
    for (Attribute& attribute : attributes) {
        attribute.key = adjustedForeignKey(vocabulary, attribute.key);
    }
    Element& element = _insertion.makeElement(tag, copyOf(attributes, _document.arena()), vocabulary);
    if (_token.token().isSelfClosing) {
        _insertion.insert(element);
        _token.acknowledgeSolidus();
    } else {
        _insertion.insertAndOpen(element, _token.nameIndex());
    }
}

void ConstructionState::insertWithFormatting(std::string_view text) {
    if (!text.empty()) {
        _formatting.reconstruct();
        _insertion.insertText(text);
    }
}

/// Whether the tag is one that goes into the head wherever it stands.
bool ConstructionState::isOfHead() const noexcept {
    switch (_token.id()) {
    case TagId::base:
    case TagId::basefont:
    case TagId::bgsound:
    case TagId::link:
    case TagId::meta:
    case TagId::noframes:
    case TagId::script:
    case TagId::style:
    case TagId::templateElement:
    case TagId::title:
        return true;
    default:
        return false;
    }
}

ConstructionState::Next ConstructionState::startOfHead() {
    switch (_token.id()) {
    case TagId::title:
        return readTextAs(Tokeniser::State::rcdata);
    case TagId::noframes:
    case TagId::style:
        return readTextAs(Tokeniser::State::rawtext);
    case TagId::script:
        return readTextAs(Tokeniser::State::scriptData);
    case TagId::templateElement:
        return startTemplate();
    default:
        insertVoid();
        return Next::token;
    }
}

/// Inserts an element whose content is text up to its end tag.
ConstructionState::Next ConstructionState::readTextAs(Tokeniser::State state) {
    insertElement();
    _tokeniser.setState(state);
    _modeBehindText = _mode;
    _mode = Mode::text;
    return Next::token;
}

ConstructionState::Next ConstructionState::startTemplate() {
    insertElement();
    _formatting.active().pushMarker();
    _allowsFrameset = false;
    _mode = Mode::inTemplate;
    _templateModes.push_back(Mode::inTemplate);
    return Next::token;
}

ConstructionState::Next ConstructionState::endTemplate() {
    if (_open.has(TagId::templateElement)) {
        closeTemplate();
    }
    return Next::token;
}

/// What is open as a template at the end of the text is closed, one after the other.
ConstructionState::Next ConstructionState::endTemplateAtEndOfFile() {
    if (!_open.has(TagId::templateElement)) {
        return Next::token;
    }
    closeTemplate();
    return Next::again;
}

void ConstructionState::closeTemplate() {
    _open.popThrough(*_open.topmost(TagId::templateElement));
    _formatting.active().clearToLastMarker();
    _templateModes.pop_back();
    resetMode();
}

/// "Reset the insertion mode appropriately".
void ConstructionState::resetMode() {
    const OpenElement& nearest = *_open.current().boundary(Boundary::insertionMode);
    const bool isRoot = &nearest == &_open.root();
    if (!isRoot || !_context) {
        _mode = modeFor(nearest.id);
    } else {
        const bool isCellOrHead = _context->id == TagId::td || _context->id == TagId::th || _context->id == TagId::head;
        _mode = isCellOrHead ? Mode::inBody : modeFor(_context->id);
    }
}

ConstructionState::Mode ConstructionState::modeFor(TagId id) const {
    switch (id) {
    case TagId::td:
    case TagId::th:
        return Mode::inCell;
    case TagId::tr:
        return Mode::inRow;
    case TagId::tbody:
    case TagId::thead:
    case TagId::tfoot:
        return Mode::inTableBody;
    case TagId::caption:
        return Mode::inCaption;
    case TagId::colgroup:
        return Mode::inColumnGroup;
    case TagId::table:
        return Mode::inTable;
    case TagId::templateElement:
        return _templateModes.back();
    case TagId::head:
        return Mode::inHead;
    case TagId::frameset:
        return Mode::inFrameset;
    case TagId::html:
        return _head == nullptr ? Mode::beforeHead : Mode::afterHead;
    default:
        return Mode::inBody;
    }
}

} // namespace brindle::html
