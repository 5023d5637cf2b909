#include "html/TreeBuilder.hpp"

#include <utility>

#include "html/Error.hpp"

namespace brindle::html {

namespace {

void addErrorsOfInput(const Document& document, ParseErrorList& errors) {
    ParseErrorList ofInput(errors.limit());
    document.source().reportErrors(ofInput);
    errors.merge(ofInput);
}

} // namespace

std::unique_ptr<Document> TreeBuilder::build(std::string text, std::string baseURI, ParseSettings settings, ParseErrorList& errors) {
    auto document = std::make_unique<Document>(InputStream(std::move(text)), std::move(baseURI));
    fill(*document, settings, errors);
    addErrorsOfInput(*document, errors);
    return document;
}

std::unique_ptr<Document> TreeBuilder::buildFragment(
    std::string text, std::string_view context, std::string baseURI, ParseSettings settings, ParseErrorList& errors) {
    auto document = std::make_unique<Document>(InputStream(std::move(text)), std::move(baseURI));
    fillFragment(*document, context, settings, errors);
    addErrorsOfInput(*document, errors);
    return document;
}

void TreeBuilder::fillFragment(
    Document& /*document*/, std::string_view /*context*/, ParseSettings /*settings*/, ParseErrorList& /*errors*/) {
    throw Error("The tree builder knows no fragments");
}

} // namespace brindle::html
