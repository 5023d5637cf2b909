#include "html/Parser.hpp"

#include <utility>

#include "html/Error.hpp"
#include "html/HtmlTreeBuilder.hpp"
#include "html/ParseErrorList.hpp"
#include "html/XmlTreeBuilder.hpp"

namespace brindle::html {

Parser::Parser(std::unique_ptr<TreeBuilder> treeBuilder, ParseSettings settings)
    : _treeBuilder(std::move(treeBuilder)), _settings(settings) {}

Parser Parser::xmlParser() {
    return {std::make_unique<XmlTreeBuilder>(), ParseSettings{.preserveTagCase = true, .preserveAttributeCase = true}};
}

Parser Parser::htmlParser() {
    return {std::make_unique<HtmlTreeBuilder>(), ParseSettings()};
}

std::unique_ptr<Document> Parser::parse(std::string text, std::string baseURI) {
    if (_treeBuilder == nullptr) {
        throw Error("The parser has no tree builder");
    }
    ParseErrorList errors(_maxErrors);
    auto document = _treeBuilder->build(std::move(text), std::move(baseURI), _settings, errors);
    _errors = std::move(errors).located(document->source().text());
    return document;
}

std::unique_ptr<Document> Parser::parseFragment(std::string text, std::string_view context, std::string baseURI) {
    if (_treeBuilder == nullptr) {
        throw Error("The parser has no tree builder");
    }
    ParseErrorList errors(_maxErrors);
    auto document = _treeBuilder->buildFragment(std::move(text), context, std::move(baseURI), _settings, errors);
    _errors = std::move(errors).located(document->source().text());
    return document;
}

std::unique_ptr<Document> parse(std::string text, std::string baseURI, Parser& parser) {
    return parser.parse(std::move(text), std::move(baseURI));
}

std::unique_ptr<Document> parse(std::string text) {
    return Parser::htmlParser().parse(std::move(text), {});
}

} // namespace brindle::html
