#include "bench/peers/CaseLoop.hpp"
#include "bench/peers/TreeText.hpp"

#include <libxml/HTMLparser.h>
#include <limits>
#include <memory>
#include <vector>

// The HTML parser of libxml2, which follows rules of its own, close to HTML 4: it adds no head, knows no foreign vocabularies, and has no
// fragments by a context that this driver asks for.

namespace {

using brindle::bench::MarkupCase;
using brindle::bench::TreeText;

struct FreeDocument {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

std::unique_ptr<xmlDoc, FreeDocument> documentOf(const std::string& markup) {
    constexpr int options = HTML_PARSE_RECOVER | HTML_PARSE_NODEFDTD | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
    if (markup.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return nullptr;
    return std::unique_ptr<xmlDoc, FreeDocument>(htmlReadMemory(markup.data(), static_cast<int>(markup.size()), nullptr, "utf-8", options));
}

std::optional<std::size_t> rootNodesOf(const std::string& page) {
    const auto document = documentOf(page);
    if (!document)
        return std::nullopt;
    std::size_t nodes = 0;
    for (const xmlNode* node = document->children; node != nullptr; node = node->next)
        ++nodes;
    return nodes;
}

std::string textOf(const xmlChar* text) {
    return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

std::vector<TreeText::Attribute> attributesOf(const xmlNode& element) {
    std::vector<TreeText::Attribute> attributes;
    for (const xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
        std::string value;
        for (const xmlNode* part = attribute->children; part != nullptr; part = part->next)
            value += textOf(part->content);
        attributes.push_back({textOf(attribute->name), value});
    }
    return attributes;
}

void show(TreeText& tree, const xmlNode& node, std::size_t depth) {
    switch (node.type) {
    case XML_ELEMENT_NODE:
        return tree.element(depth, textOf(node.name), attributesOf(node));
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
        return tree.text(depth, textOf(node.content));
    case XML_COMMENT_NODE:
        return tree.comment(depth, textOf(node.content));
    case XML_DTD_NODE: {
        const auto& type = reinterpret_cast<const xmlDtd&>(node);
        return tree.documentType(textOf(type.name), textOf(type.ExternalID), textOf(type.SystemID));
    }
    default:
        return;
    }
}

std::optional<std::string> treeOf(const MarkupCase& given) {
    if (!given.context.empty())
        return std::nullopt;
    const auto document = documentOf(given.markup);
    TreeText tree;
    const xmlNode* node = document ? document->children : nullptr;
    std::size_t depth = 0;
    while (node != nullptr) {
        show(tree, *node, depth);
        if (node->type == XML_ELEMENT_NODE && node->children != nullptr) {
            node = node->children;
            ++depth;
            continue;
        }
        while (node->next == nullptr && depth > 0) {
            node = node->parent;
            --depth;
        }
        node = node->next;
    }
    return tree.lines();
}

} // namespace

int main(int argc, char** argv) {
    return brindle::bench::runPeer(argc, argv, "LibxmlPeer", rootNodesOf, treeOf);
}
