#include "html/Serialiser.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "html/AsciiText.hpp"
#include "html/Document.hpp"
#include "html/EscapedText.hpp"
#include "html/XmlName.hpp"

namespace brindle::html {

namespace {

/// A line feed with as many blanks as nearly all lines start with, to be copied as a whole.
constexpr auto lineStart = [] {
    std::array<char, 32> line{};
    line.fill(' ');
    line[0] = '\n';
    return line;
}();

/// A guess at the size of the text, so that the buffer seldom grows.
std::size_t expectedSize(const Node& top) noexcept {
    constexpr std::size_t least = 1024;
    if (top.kind() != Node::Kind::document) {
        return least;
    }
    const std::size_t sourceSize = static_cast<const Document&>(top).source().text().size();
    return sourceSize + sourceSize / 8 + least;
}

/// Whether text of the element is written as it is in HTML (section 13.3 of the standard).
bool holdsRawText(const Element* element) noexcept {
    if (element == nullptr || element->vocabulary() != Element::Vocabulary::html) {
        return false;
    }
    switch (element->tag().id()) {
    case TagId::style:
    case TagId::script:
    case TagId::xmp:
    case TagId::iframe:
    case TagId::noembed:
    case TagId::noframes:
    case TagId::plaintext:
        return true;
    default:
        return false;
    }
}

/// Whether HTML knows no end tag for the element.
bool isVoid(const Element& element) noexcept {
    return element.vocabulary() == Element::Vocabulary::html && element.tag().isEmpty();
}

} // namespace

std::string Serialiser::serialise(const Node& top) const {
    OutputBuffer output(expectedSize(top));
    // The document itself is no line of the text: what hangs from it has depth 0.
    const bool isDocument = top.kind() == Node::Kind::document;
    std::size_t depth = 0;
    const Node* node = isDocument ? top.firstChild() : &top;
    while (node != nullptr) {
        open(output, *node, depth);
        if (const Node* const child = node->firstChild()) {
            node = child;
            ++depth;
            continue;
        }
        while (node != &top && node->nextSibling() == nullptr) {
            node = node->parent();
            if (isDocument && node == &top) {
                return std::move(output).take();
            }
            --depth;
            close(output, static_cast<const Element&>(*node), depth);
        }
        node = node == &top ? nullptr : node->nextSibling();
    }
    return std::move(output).take();
}

void Serialiser::open(OutputBuffer& output, const Node& node, std::size_t depth) const {
    switch (node.kind()) {
    case Node::Kind::document:
        return;
    case Node::Kind::element:
        return openElement(output, static_cast<const Element&>(node), depth);
    case Node::Kind::text:
        return writeText(output, static_cast<const TextNode&>(node), depth);
    case Node::Kind::comment:
        output.append("<!--");
        output.append(static_cast<const Comment&>(node).text());
        return output.append("-->");
    case Node::Kind::xmlDeclaration: {
        const auto& declaration = static_cast<const XmlDeclaration&>(node);
        output.append("<");
        output.append(1, declaration.opener());
        output.append(declaration.text());
        return output.append(declaration.opener() == '?' ? "?>" : ">");
    }
    case Node::Kind::documentType:
        return writeDocumentType(output, static_cast<const DocumentType&>(node));
    }
}

void Serialiser::openElement(OutputBuffer& output, const Element& element, std::size_t depth) const {
    if (_settings.prettyPrint() && (formatsAsBlock(&element) || formatsAsBlock(element.parent()))) {
        startLine(output, depth);
    }
    const std::string_view name = element.tagName();
    output.ensureRoom(2 * name.size() + 8);
    output.put('<');
    output.put(name);
    writeAttributes(output, element.attributes());
    output.ensureRoom(name.size() + 4);
    if (element.firstChild() == nullptr && isXml() && element.isSelfClosing()) {
        return output.put(" />");
    }
    output.put('>');
    if (element.firstChild() == nullptr && (isXml() || !isVoid(element))) {
        output.put("</");
        output.put(name);
        output.put('>');
    }
}

void Serialiser::close(OutputBuffer& output, const Element& element, std::size_t depth) const {
    if (_settings.prettyPrint() && formatsAsBlock(&element)) {
        startLine(output, depth);
    }
    const std::string_view name = element.tagName();
    output.ensureRoom(name.size() + 3);
    output.put("</");
    output.put(name);
    output.put('>');
}

void Serialiser::writeAttributes(OutputBuffer& output, const Attributes& attributes) const {
    const EscapedPlace place = isXml() ? EscapedPlace::xmlAttribute : EscapedPlace::htmlAttribute;
    for (const Attribute& attribute : attributes) {
        if (isXml() && !isXmlName(attribute.key)) {
            continue;
        }
        output.ensureRoom(attribute.key.size() + 4);
        output.put(' ');
        output.put(attribute.key);
        output.put("=\"");
        appendEscaped(output, attribute.value, place);
        output.append("\"");
    }
}

void Serialiser::writeText(OutputBuffer& output, const TextNode& text, std::size_t depth) const {
    const Element* const parent = text.parent();
    if (!isXml() && holdsRawText(parent)) {
        return output.append(text.text());
    }
    const bool preservesWhitespace = !_settings.prettyPrint() || (parent != nullptr && parent->tag().preserveWhitespace());
    if (_settings.prettyPrint()) {
        if (isBlank(text.text())) {
            return preservesWhitespace ? output.append(text.text()) : output.append(" ");
        }
        if (text.previousSibling() == nullptr && formatsAsBlock(parent)) {
            startLine(output, depth);
        }
    }
    appendEscaped(output, text.text(), preservesWhitespace ? EscapedPlace::text : EscapedPlace::collapsedText);
}

void Serialiser::writeDocumentType(OutputBuffer& output, const DocumentType& type) const {
    output.append("<!DOCTYPE");
    if (isXml()) {
        output.append(type.text());
    } else {
        output.append(" ");
        output.append(type.name());
    }
    output.append(">");
}

void Serialiser::startLine(OutputBuffer& output, std::size_t depth) const {
    const std::size_t blanks = std::min(depth, deepestIndentation) * _settings.indentAmount();
    output.ensureRoom(lineStart.size());
    output.putPadded(lineStart, std::min(blanks + 1, lineStart.size()));
    if (blanks >= lineStart.size()) {
        output.append(blanks + 1 - lineStart.size(), ' ');
    }
}

bool Serialiser::formatsAsBlock(const Element* element) const noexcept {
    return element != nullptr && (element->tag().formatAsBlock() || _settings.outline());
}

} // namespace brindle::html
