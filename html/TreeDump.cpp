#include "html/TreeDump.hpp"

#include <algorithm>
#include <vector>

#include "html/DataNodes.hpp"
#include "html/Element.hpp"

namespace brindle::html {

namespace {

constexpr std::size_t deepestIndentation = 256;

void startLine(std::string& dump, std::size_t depth) {
    dump += "| ";
    dump.append(2 * std::min(depth, deepestIndentation), ' ');
}

void dumpElement(std::string& dump, const Element& element, std::size_t depth) {
    dump += '<';
    if (element.vocabulary() == Element::Vocabulary::svg) {
        dump += "svg ";
    } else if (element.vocabulary() == Element::Vocabulary::mathMl) {
        dump += "math ";
    }
    dump.append(element.tagName()).append(">\n");
    std::vector<Attribute> attributes(element.attributes().begin(), element.attributes().end());
    std::sort(attributes.begin(), attributes.end(), [](const Attribute& a, const Attribute& b) { return a.key < b.key; });
    for (const Attribute& attribute : attributes) {
        startLine(dump, depth + 1);
        dump.append(attribute.key).append("=\"").append(attribute.value).append("\"\n");
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

} // namespace

std::string html5libDump(const Node& node) {
    std::string dump;
    const bool isDocument = node.kind() == Node::Kind::document;
    std::size_t depth = 0;
    const Node* at = isDocument ? node.firstChild() : &node;
    while (at != nullptr) {
        dumpNode(dump, *at, depth);
        if (at->firstChild() != nullptr) {
            at = at->firstChild();
            ++depth;
            continue;
        }
        while (at != nullptr && at != &node && at->nextSibling() == nullptr) {
            at = at->parent();
            --depth;
        }
        at = at == nullptr || at == &node ? nullptr : at->nextSibling();
    }
    return dump;
}

} // namespace brindle::html
