#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "html/Parser.hpp"

namespace brindle::html::testing {

inline std::unique_ptr<Document> parseXml(std::string text, std::string baseURI = {}) {
    Parser parser = Parser::xmlParser();
    return parse(std::move(text), std::move(baseURI), parser);
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
