#include "foundation/XMLParser.hpp"

#include "foundation/FatalError.hpp"
#include "foundation/Text.hpp"
#include "foundation/XMLEntities.hpp"
#include "foundation/XMLInput.hpp"

#include <algorithm>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <limits>
#include <memory>

namespace brindle {

namespace {

/// libxml2's reader by chunks has no limit of its own; each level costs it some forty bytes.
constexpr std::size_t maximumDepth = 1'000'000;

/// What entities may add to a document, in bytes: this much and that often its size.
constexpr std::size_t freeExpansion = 10'000'000;
constexpr std::size_t expansionFactor = 20;

/// What a reference to a declared entity counts for beside its text: each costs libxml2 a reader of its own.
constexpr std::size_t expansionCost = 32;

constexpr const char* tooManyAttributes = "An element has too many attributes";

constexpr int options = XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_SAX1 | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_IGNORE_ENC;

std::string_view view(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

std::string_view view(const xmlChar* text, int size) {
    return std::string_view(reinterpret_cast<const char*>(text), static_cast<std::size_t>(size));
}

xmlParserInput* refuseExternalEntity(const char*, const char*, xmlParserCtxt*) {
    return nullptr;
}

/// libxml2's state of the whole process, made once whichever thread comes first.
void prepareLibrary() {
    static const bool prepared = [] {
        xmlInitParser();
        xmlSetExternalEntityLoader(refuseExternalEntity);
        return true;
    }();
    static_cast<void>(prepared);
}

/// Hands over the document piece by piece; a whole CDATA section at least, since only so does it come as one event.
void feed(xmlParserCtxt* context, const XMLInput& input) {
    const std::string_view text = input.text();
    std::size_t begin = 0;
    while (context->wellFormed && context->instate != XML_PARSER_EOF) {
        const std::size_t end = input.endOfPiece(begin);
        const int isLast = end == text.size();
        xmlParseChunk(context, text.data() + begin, static_cast<int>(end - begin), isLast);
        if (isLast)
            break;
        begin = end;
    }
}

struct ContextDeleter {
    void operator()(xmlParserCtxt* context) const {
        xmlFreeDoc(context->myDoc);
        context->myDoc = nullptr;
        xmlFreeParserCtxt(context);
    }
};

} // namespace

/// Hands libxml2's events on to the delegate.
class XMLParserEvents {
public:
    XMLParserEvents(XMLParser& parser, std::size_t inputSize)
        : _parser(parser), _delegate(*parser.delegate), _allowance(freeExpansion + expansionFactor * inputSize) {}

    static xmlSAXHandler handler() {
        xmlSAXHandler handler{};
        handler.getEntity = [](void* self, const xmlChar* name) { return of(self).entity(view(name)); };
        handler.getParameterEntity = [](void* self, const xmlChar*) { return of(self)._entities.unreadParameter(); };
        handler.entityDecl = declareEntity;
        handler.startElement = startElement;
        handler.endElement = endElement;
        handler.characters = characters;
        handler.ignorableWhitespace = characters;
        handler.cdataBlock = cdataBlock;
        return handler;
    }

private:
    static XMLParserEvents& of(void* self) { return *static_cast<XMLParserEvents*>(self); }

    /// Inside an entity libxml2 reads on after it was stopped; nothing of that is delivered.
    bool isStopped() const { return _parser._error.has_value(); }

    static void startElement(void* self, const xmlChar* name, const xmlChar** attributes) {
        XMLParserEvents& events = of(self);
        if (events.isStopped())
            return;
        if (++events._depth > maximumDepth)
            return events._parser.abortParsing("Elements are nested too deeply");
        events._attributes.clear();
        for (; attributes != nullptr && attributes[0] != nullptr; attributes += 2)
            events._attributes.append(view(attributes[0]), attributes[1] == nullptr ? std::string_view() : view(attributes[1]));
        events._delegate.didStartElement(view(name), events._attributes);
    }

    static void endElement(void* self, const xmlChar* name) {
        XMLParserEvents& events = of(self);
        if (events.isStopped())
            return;
        --events._depth;
        events._delegate.didEndElement(view(name));
    }

    static void characters(void* self, const xmlChar* text, int size) {
        XMLParserEvents& events = of(self);
        if (!events.isStopped())
            events._delegate.foundCharacters(view(text, size));
    }

    static void cdataBlock(void* self, const xmlChar* text, int size) {
        XMLParserEvents& events = of(self);
        if (!events.isStopped())
            events._delegate.foundCDATA(view(text, size));
    }

    static void declareEntity(void* self, const xmlChar* name, int type, const xmlChar*, const xmlChar*, xmlChar* content) {
        if (type == XML_INTERNAL_PARAMETER_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY)
            return;
        if (content != nullptr && hasTooManyAttributes(view(content)))
            return of(self)._parser.abortParsing(tooManyAttributes);
        of(self)._entities.declare(view(name), content);
    }

    /// Counts what a reference to a declared entity brings in. Expansions that libxml2 keeps to itself, as in attributes, are counted as
    /// well.
    xmlEntity* charged(xmlEntity* entity) {
        if (entity == nullptr || isStopped())
            return nullptr;
        const std::size_t cost = expansionCost + static_cast<std::size_t>(entity->length);
        if (cost > _allowance) {
            _parser.abortParsing("Entities expand to too much text");
            return nullptr;
        }
        _allowance -= cost;
        return entity;
    }

    xmlEntity* entity(std::string_view name) {
        if (xmlEntity* declared = _entities.general(name))
            return charged(declared);
        if (isStopped())
            return nullptr;
        // A text without markup needs no reader of its own where the reference stands in the document's own content. Inside a declared
        // entity the place is not known here.
        const auto* const context = static_cast<const xmlParserCtxt*>(_parser._context);
        const bool isContent = context->instate == XML_PARSER_CONTENT && !_entities.declaresAny();
        if (xmlEntity* known = _entities.named(name, isContent))
            return known;
        const std::optional<std::string_view> text = _parser.namedReferences ? _parser.namedReferences(name) : std::nullopt;
        if (!text) {
            _parser.abortParsing("Entity '" + std::string(name) + "' not defined");
            return nullptr;
        }
        _entities.define(name, *text);
        return _entities.named(name, isContent);
    }

    XMLParser& _parser;
    XMLParserDelegate& _delegate;
    XMLEntities _entities;
    XMLAttributes _attributes;
    std::size_t _depth = 0;
    std::size_t _allowance;
};

std::optional<std::string_view> XMLAttributes::operator[](std::string_view name) const {
    for (const auto& [ownName, value] : _attributes) {
        if (ownName == name)
            return value;
    }
    return std::nullopt;
}

XMLParser::XMLParser(std::string_view data, StringEncoding encoding) : _data(data), _encoding(encoding) {}

bool XMLParser::parse() {
    if (delegate == nullptr)
        fatalError("XMLParser without a delegate");
    prepareLibrary();
    const XMLInput input(_data, _encoding);
    const bool tooLarge = input.text().size() > static_cast<std::size_t>(std::numeric_limits<int>::max() / 2);
    if (tooLarge || hasTooManyAttributes(input.text())) {
        _error = XMLParserError{0, 0, tooLarge ? "Document is too large" : tooManyAttributes};
        return false;
    }
    XMLParserEvents events(*this, input.text().size());
    xmlSAXHandler handler = XMLParserEvents::handler();
    const std::unique_ptr<xmlParserCtxt, ContextDeleter> context(xmlCreatePushParserCtxt(&handler, &events, nullptr, 0, nullptr));
    if (context == nullptr)
        fatalError("No memory for an XML parser");
    xmlCtxtUseOptions(context.get(), options);
    // Without a document libxml2 makes one at the first entity, in which it keeps the declarations a second time.
    context->myDoc = xmlNewDoc(nullptr);
    _context = context.get();
    delegate->parserDidStartDocument();
    feed(context.get(), input);
    if (!_error && !context->wellFormed) {
        const xmlError& error = context->lastError;
        const std::string_view message = error.message == nullptr ? "Not well-formed" : error.message;
        _error = XMLParserError{error.code, error.line, std::string(text::trimmed(message))};
    }
    if (!_error)
        delegate->parserDidEndDocument();
    _context = nullptr;
    if (_error && _error->line > 0)
        _error->line += input.skippedLines();
    return !_error;
}

void XMLParser::abortParsing(std::string message) {
    if (_context == nullptr || _error)
        return;
    auto* const context = static_cast<xmlParserCtxt*>(_context);
    _error = XMLParserError{0, std::max(xmlSAX2GetLineNumber(context), 0), std::move(message)};
    xmlStopParser(context);
}

} // namespace brindle
