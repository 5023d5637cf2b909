#include "html/HtmlTreeBuilder.hpp"

#include "html/TreeConstruction.hpp"

namespace brindle::html {

void HtmlTreeBuilder::fill(Document& document, ParseSettings settings, ParseErrorList& errors) {
    TreeConstruction(document, settings, errors).run();
}

void HtmlTreeBuilder::fillFragment(Document& document, std::string_view context, ParseSettings settings, ParseErrorList& errors) {
    TreeConstruction(document, settings, errors).runFragment(context);
}

} // namespace brindle::html
