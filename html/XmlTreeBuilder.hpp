#pragma once

#include "html/TreeBuilder.hpp"

namespace brindle::html {

/// Takes tags for what they say and knows no HTML: no element is void, none is supplied, no text is special. An end tag closes up to the
/// nearest open element of exactly its name, and is ignored where there is none; the end of the text closes the rest.
/// CDATA sections become text nodes of their own. The document is written as XML.
class XmlTreeBuilder final : public TreeBuilder {
protected:
    void fill(Document& document, ParseSettings settings, ParseErrorList& errors) override;
};

} // namespace brindle::html
