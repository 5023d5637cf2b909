#include "html/TreeBuilder.hpp"

#include <utility>

namespace brindle::html {

std::unique_ptr<Document> TreeBuilder::build(std::string text, std::string baseURI, ParseSettings settings, ParseErrorList& errors) {
    auto document = std::make_unique<Document>(InputStream(std::move(text)), std::move(baseURI));
    fill(*document, settings, errors);
    ParseErrorList ofInput(errors.limit());
    document->source().reportErrors(ofInput);
    errors.merge(ofInput);
    return document;
}

} // namespace brindle::html
