#include "html/TreeConstruction.hpp"

#include <utility>

#include "html/DataNodes.hpp"
#include "html/QuirksMode.hpp"

// The dispatcher and the fragment case: sections 13.2.6 and 13.4 of the HTML standard.

namespace brindle::html {

namespace {

/// What a name such as "td" or "svg path" stands for.
std::pair<Element::Vocabulary, std::string_view> contextParts(std::string_view context) noexcept {
    constexpr std::string_view svg = "svg ";
    constexpr std::string_view mathMl = "math ";
    if (context.starts_with(svg)) {
        return {Element::Vocabulary::svg, context.substr(svg.size())};
    }
    if (context.starts_with(mathMl)) {
        return {Element::Vocabulary::mathMl, context.substr(mathMl.size())};
    }
    return {Element::Vocabulary::html, context};
}

} // namespace

void TreeConstruction::run() {
    readToTheEnd();
}

void TreeConstruction::runFragment(std::string_view context) {
    setContext(context);
    openRoot({});
    if (_context->id == TagId::templateElement) {
        _templateModes.push_back(Mode::inTemplate);
    }
    resetMode();
    if (_context->id == TagId::form) {
        _form = _context->element;
    }
    Element& root = *_open.root().element;
    readToTheEnd();
    _document.removeChild(&root);
    _document.takeChildrenOf(root);
}

void TreeConstruction::setContext(std::string_view context) {
    const auto [vocabulary, name] = contextParts(context);
    TagTable& tags = _document.tags();
    Element& element = _insertion.makeElement(tags[tags.intern(_document.arena().copy(name))], {}, vocabulary);
    _context.emplace();
    _context->element = &element;
    if (vocabulary != Element::Vocabulary::html) {
        _context->traits = traitsOfForeign(element);
        _context->foreignRun = 1;
        return;
    }
    _context->id = element.tag().id();
    _context->traits = traitsOfHtml(_context->id);
    setStateFor(_context->id);
}

void TreeConstruction::setStateFor(TagId context) {
    switch (context) {
    case TagId::title:
    case TagId::textarea:
        return _tokeniser.setState(Tokeniser::State::rcdata);
    case TagId::style:
    case TagId::xmp:
    case TagId::iframe:
    case TagId::noembed:
    case TagId::noframes:
        return _tokeniser.setState(Tokeniser::State::rawtext);
    case TagId::script:
        return _tokeniser.setState(Tokeniser::State::scriptData);
    case TagId::plaintext:
        return _tokeniser.setState(Tokeniser::State::plaintext);
    default:
        return;
    }
}

void TreeConstruction::readToTheEnd() {
    for (;;) {
        _tokeniser.setAllowsCdata(!_open.empty() && !adjustedCurrent().isHtml());
        const Token& token = _tokeniser.next();
        take(token);
        if (token.kind == Token::Kind::endOfFile) {
            break;
        }
    }
    _open.popThrough(_open.root());
    _rootAttributes.finish(_document.arena());
    _bodyAttributes.finish(_document.arena());
}

void TreeConstruction::take(const Token& token) {
    _token.set(token);
    if (token.kind == Token::Kind::text) {
        if (_dropsLineFeed) {
            _token.dropLeadingLineFeed();
        }
        _dropsLineFeed = false;
        if (!_token.text().empty()) {
            process();
        }
        return;
    }
    _dropsLineFeed = false;
    flushTableText();
    if (token.kind == Token::Kind::comment) {
        return takeComment();
    }
    if (token.kind == Token::Kind::documentType) {
        return takeDocumentType();
    }
    process();
    if (_token.hasStraySolidus() && token.kind == Token::Kind::startTag) {
        _errors.report(ParseErrorCode::nonVoidHtmlElementStartTagWithTrailingSolidus, _tokeniser.offset() - 1);
    }
}

void TreeConstruction::process() {
    while ((goesByHtmlRules() ? processByMode() : inForeign()) == Next::again) {
    }
}

/// The element that the dispatcher looks at.
const OpenElement& TreeConstruction::adjustedCurrent() const noexcept {
    return _context && _open.holdsRootOnly() ? *_context : _open.current();
}

bool TreeConstruction::goesByHtmlRules() const noexcept {
    if (_open.empty()) {
        return true;
    }
    const OpenElement& current = adjustedCurrent();
    if (current.isHtml() || _token.isEndOfFile()) {
        return true;
    }
    const bool isText = _token.isText();
    if (!isText && !_token.isStartTag()) {
        return false;
    }
    if ((current.traits & traits::htmlIntegrationPoint) != 0) {
        return true;
    }
    if ((current.traits & traits::mathMlTextIntegrationPoint) != 0) {
        return isText || (_token.tag().name() != "mglyph" && _token.tag().name() != "malignmark");
    }
    return (current.traits & traits::annotation) != 0 && !isText && _token.id() == TagId::svg;
}

TreeConstruction::Next TreeConstruction::processByMode() {
    switch (_mode) {
    case Mode::initial:
        return initial();
    case Mode::beforeHtml:
        return beforeHtml();
    case Mode::beforeHead:
        return beforeHead();
    case Mode::inHead:
        return inHead();
    case Mode::inHeadNoscript:
        return inHeadNoscript();
    case Mode::afterHead:
        return afterHead();
    case Mode::inBody:
        return inBody();
    case Mode::text:
        return inText();
    case Mode::inTable:
        return inTable();
    case Mode::inCaption:
        return inCaption();
    case Mode::inColumnGroup:
        return inColumnGroup();
    case Mode::inTableBody:
        return inTableBody();
    case Mode::inRow:
        return inRow();
    case Mode::inCell:
        return inCell();
    case Mode::inTemplate:
        return inTemplate();
    case Mode::afterBody:
        return afterBody();
    case Mode::inFrameset:
        return inFrameset();
    case Mode::afterFrameset:
        return afterFrameset();
    case Mode::afterAfterBody:
        return afterAfterBody();
    case Mode::afterAfterFrameset:
        return afterAfterFrameset();
    }
    return Next::token;
}

void TreeConstruction::takeComment() {
    Node& comment = *_document.arena().make<Comment>(_token.token().data);
    switch (_mode) {
    case Mode::initial:
    case Mode::beforeHtml:
    case Mode::afterAfterBody:
    case Mode::afterAfterFrameset:
        return _document.appendChild(&comment);
    case Mode::afterBody:
        return _open.root().element->appendChild(&comment);
    default:
        return _insertion.insert(comment);
    }
}

/// A document type counts at the start only.
void TreeConstruction::takeDocumentType() {
    if (_mode != Mode::initial) {
        return;
    }
    const Token& token = _token.token();
    _document.appendChild(_document.arena().make<DocumentType>(token.data, token.name, token.publicId, token.systemId));
    _document.setMode(documentModeOf(token));
    _mode = Mode::beforeHtml;
}

} // namespace brindle::html
