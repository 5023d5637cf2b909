#include "html/TreeDump.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "html/DataNodes.hpp"
#include "html/Document.hpp"
#include "html/ForeignNames.hpp"

namespace brindle::html {

namespace {

constexpr std::size_t deepestIndentation = 256;

void startLine(std::string& dump, std::size_t depth) {
    dump += "| ";
    dump.append(2 * std::min(depth, deepestIndentation), ' ');
}

/// An attribute's name as it is shown: with a blank between the prefix and the local name where it has a namespace.
std::string shownKey(std::string_view key, Element::Vocabulary vocabulary) {
    const auto parts = vocabulary != Element::Vocabulary::html ? namespacedKey(key) : std::nullopt;
    return parts ? std::string(parts->prefix).append(" ").append(parts->localName) : std::string(key);
}

void dumpElement(std::string& dump, const Element& element, std::size_t depth) {
    dump += '<';
    if (element.vocabulary() == Element::Vocabulary::svg) {
        dump += "svg ";
    } else if (element.vocabulary() == Element::Vocabulary::mathMl) {
        dump += "math ";
    }
    dump.append(element.tagName()).append(">\n");
    std::vector<std::pair<std::string, std::string_view>> attributes;
    for (const Attribute& attribute : element.attributes()) {
        attributes.emplace_back(shownKey(attribute.key, element.vocabulary()), attribute.value);
    }
    std::sort(attributes.begin(), attributes.end());
    for (const auto& [key, value] : attributes) {
        startLine(dump, depth + 1);
        dump.append(key).append("=\"").append(value).append("\"\n");
    }
}

void dumpDocumentType(std::string& dump, const DocumentType& type) {
    dump.append("<!DOCTYPE ").append(type.name());
    if (!type.publicId().empty() || !type.systemId().empty()) {
        dump.append(" \"").append(type.publicId()).append("\" \"").append(type.systemId()).append("\"");
    }
    dump += ">\n";
}

void dumpText(std::string& dump, const TextNode& text) {
    const auto isText = [](const Node* node) { return node != nullptr && node->kind() == Node::Kind::text; };
    dump.append(isText(text.previousSibling()) ? "" : "\"").append(text.text());
    if (!isText(text.nextSibling())) {
        dump += "\"\n";
    }
}

void dumpNode(std::string& dump, const Node& node, std::size_t depth) {
    const bool continuesText =
        node.kind() == Node::Kind::text && node.previousSibling() != nullptr && node.previousSibling()->kind() == Node::Kind::text;
    if (!continuesText) {
        startLine(dump, depth);
    }
    switch (node.kind()) {
    case Node::Kind::document:
    case Node::Kind::element:
        return dumpElement(dump, static_cast<const Element&>(node), depth);
    case Node::Kind::text:
        return dumpText(dump, static_cast<const TextNode&>(node));
    case Node::Kind::comment:
        dump.append("<!-- ").append(static_cast<const Comment&>(node).text()).append(" -->\n");
        return;
    case Node::Kind::xmlDeclaration: {
        const auto& declaration = static_cast<const XmlDeclaration&>(node);
        dump.append("<").append(1, declaration.opener()).append(declaration.text()).append(">\n");
        return;
    }
    case Node::Kind::documentType:
        return dumpDocumentType(dump, static_cast<const DocumentType&>(node));
    }
}

/// Whether what is below a node is shown below a line of its own, as the content of a template is.
bool showsContent(const Node& node) {
    const Element* const element = node.asElement();
    return element != nullptr && element->vocabulary() == Element::Vocabulary::html && element->tagName() == "template";
}

} // namespace

std::string html5libDump(const Node& node) {
    std::string dump;
    const Document* const document = node.ownerDocument();
    const bool isHtml = document != nullptr && document->outputSettings().syntax() == OutputSettings::Syntax::html;
    std::size_t depth = 0;
    const Node* at = &node == document ? node.firstChild() : &node;
    while (at != nullptr) {
        dumpNode(dump, *at, depth);
        const bool isContent = isHtml && showsContent(*at);
        if (isContent) {
            startLine(dump, depth + 1);
            dump += "content\n";
        }
        if (at->firstChild() != nullptr) {
            at = at->firstChild();
            depth += isContent ? 2 : 1;
            continue;
        }
        while (at != nullptr && at != &node && at->nextSibling() == nullptr) {
            at = at->parent();
            depth -= isHtml && at != nullptr && showsContent(*at) ? 2 : 1;
        }
        at = at == nullptr || at == &node ? nullptr : at->nextSibling();
    }
    return dump;
}

} // namespace brindle::html
