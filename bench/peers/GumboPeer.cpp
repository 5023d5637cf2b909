#include "bench/peers/CaseLoop.hpp"
#include "bench/peers/TreeText.hpp"

#include <algorithm>
#include <gumbo.h>
#include <memory>
#include <utility>
#include <vector>

// gumbo, which builds trees by an older state of the HTML standard. It keeps no place of the document type among the comments before the
// root, and of a name that it doesn't know only where the name stands in the text.

namespace {

using brindle::bench::MarkupCase;
using brindle::bench::TreeText;

struct DestroyOutput {
    void operator()(GumboOutput* output) const { gumbo_destroy_output(&kGumboDefaultOptions, output); }
};

using Output = std::unique_ptr<GumboOutput, DestroyOutput>;

/// Options that keep no errors, as the others keep none.
GumboOptions optionsFor(std::string_view context) {
    GumboOptions options = kGumboDefaultOptions;
    options.max_errors = 0;
    if (context.empty())
        return options;
    const auto blank = context.find(' ');
    const std::string_view vocabulary = blank == std::string_view::npos ? "" : context.substr(0, blank);
    options.fragment_namespace =
        vocabulary == "svg" ? GUMBO_NAMESPACE_SVG : (vocabulary == "math" ? GUMBO_NAMESPACE_MATHML : GUMBO_NAMESPACE_HTML);
    options.fragment_context = gumbo_tag_enum(std::string(context.substr(vocabulary.empty() ? 0 : blank + 1)).c_str());
    return options;
}

Output outputOf(const std::string& markup, std::string_view context) {
    const GumboOptions options = optionsFor(context);
    return Output(gumbo_parse_with_options(&options, markup.data(), markup.size()));
}

std::optional<std::size_t> rootNodesOf(const std::string& page) {
    const Output output = outputOf(page, "");
    return output ? std::optional<std::size_t>(output->document->v.document.children.length) : std::nullopt;
}

std::string nameOf(const GumboElement& element) {
    GumboStringPiece written = element.original_tag;
    gumbo_tag_from_original_text(&written);
    const char* svgName = element.tag_namespace == GUMBO_NAMESPACE_SVG ? gumbo_normalize_svg_tagname(&written) : nullptr;
    if (svgName != nullptr)
        return svgName;
    if (element.tag != GUMBO_TAG_UNKNOWN)
        return gumbo_normalized_tagname(element.tag);
    std::string name(written.data, written.length);
    std::transform(name.begin(), name.end(), name.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; });
    return name;
}

std::string shownNameOf(const GumboElement& element) {
    switch (element.tag_namespace) {
    case GUMBO_NAMESPACE_SVG:
        return "svg " + nameOf(element);
    case GUMBO_NAMESPACE_MATHML:
        return "math " + nameOf(element);
    case GUMBO_NAMESPACE_HTML:
        break;
    }
    return nameOf(element);
}

TreeText::Attribute shownAttribute(const GumboAttribute& attribute) {
    switch (attribute.attr_namespace) {
    case GUMBO_ATTR_NAMESPACE_XLINK:
        return {std::string("xlink ") + attribute.name, attribute.value};
    case GUMBO_ATTR_NAMESPACE_XML:
        return {std::string("xml ") + attribute.name, attribute.value};
    case GUMBO_ATTR_NAMESPACE_XMLNS:
        return {std::string("xmlns ") + attribute.name, attribute.value};
    case GUMBO_ATTR_NAMESPACE_NONE:
        break;
    }
    return {attribute.name, attribute.value};
}

std::vector<TreeText::Attribute> attributesOf(const GumboElement& element) {
    std::vector<TreeText::Attribute> attributes;
    for (unsigned i = 0; i < element.attributes.length; ++i)
        attributes.push_back(shownAttribute(*static_cast<const GumboAttribute*>(element.attributes.data[i])));
    return attributes;
}

struct Place {
    const GumboNode* node;
    std::size_t depth;
};

/// Puts children on top of the nodes that are still to be shown, the first one uppermost.
void putOnTop(std::vector<Place>& places, const GumboVector& children, std::size_t depth) {
    for (unsigned i = children.length; i > 0; --i)
        places.push_back({static_cast<const GumboNode*>(children.data[i - 1]), depth});
}

std::string linesOf(TreeText tree, const GumboVector& nodes) {
    std::vector<Place> places;
    putOnTop(places, nodes, 0);
    while (!places.empty()) {
        const auto [node, depth] = places.back();
        places.pop_back();
        switch (node->type) {
        case GUMBO_NODE_DOCUMENT:
            break;
        case GUMBO_NODE_ELEMENT:
            tree.element(depth, shownNameOf(node->v.element), attributesOf(node->v.element));
            putOnTop(places, node->v.element.children, depth + 1);
            break;
        case GUMBO_NODE_TEMPLATE:
            tree.element(depth, shownNameOf(node->v.element), attributesOf(node->v.element));
            tree.content(depth + 1);
            putOnTop(places, node->v.element.children, depth + 2);
            break;
        case GUMBO_NODE_COMMENT:
            tree.comment(depth, node->v.text.text);
            break;
        case GUMBO_NODE_TEXT:
        case GUMBO_NODE_CDATA:
        case GUMBO_NODE_WHITESPACE:
            tree.text(depth, node->v.text.text);
            break;
        }
    }
    return tree.lines();
}

std::optional<std::string> treeOf(const MarkupCase& given) {
    const Output output = outputOf(given.markup, given.context);
    if (!output)
        return "";
    TreeText tree;
    if (!given.context.empty())
        return linesOf(std::move(tree), output->root->v.element.children);
    const GumboDocument& document = output->document->v.document;
    if (document.has_doctype)
        tree.documentType(document.name, document.public_identifier, document.system_identifier);
    return linesOf(std::move(tree), document.children);
}

} // namespace

int main(int argc, char** argv) {
    return brindle::bench::runPeer(argc, argv, "GumboPeer", rootNodesOf, treeOf);
}
