#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "html/Parser.hpp"
#include "html/TreeDump.hpp"

namespace brindle::html::testing {

inline std::unique_ptr<Document> parseXml(std::string text, std::string baseURI = {}) {
    Parser parser = Parser::xmlParser();
    return parse(std::move(text), std::move(baseURI), parser);
}

inline std::unique_ptr<Document> parseHtml(std::string text) {
    return parse(std::move(text));
}

/// The tree of a text by the rules of HTML, a line for each node.
inline std::string htmlTree(std::string text) {
    return html5libDump(*parseHtml(std::move(text)));
}

/// The same for what stands in the body.
inline std::string bodyTree(std::string text) {
    const auto document = parseHtml(std::move(text));
    const Elements bodies = document->getElementsByTag("body");
    std::string tree;
    for (const Node* node = bodies.empty() ? nullptr : bodies[0]->firstChild(); node != nullptr; node = node->nextSibling()) {
        tree += html5libDump(*node);
    }
    return tree;
}

/// The tree of a text as the content of an element.
inline std::string fragmentTree(std::string text, std::string_view context) {
    return html5libDump(*Parser::htmlParser().parseFragment(std::move(text), context));
}

/// What the text becomes by way of a tree under the default settings.
inline std::string rewritten(std::string text) {
    return parseXml(std::move(text))->outerHtml();
}

/// The same without pretty printing.
inline std::string rewrittenPlainly(std::string text) {
    const auto document = parseXml(std::move(text));
    document->outputSettings().setPrettyPrint(false);
    return document->outerHtml();
}

inline std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t index = 0; index < count; ++index) {
        text += piece;
    }
    return text;
}

/// The element that the document starts with.
inline const Element& firstElement(const Document& document) {
    return *document.children()[0];
}

} // namespace brindle::html::testing
