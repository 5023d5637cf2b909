#pragma once

#include "html/TreeBuilder.hpp"

namespace brindle::html {

/// Builds the tree that the HTML standard asks for (section 13.2.6), with scripting off: what is missing is supplied, what is misplaced is
/// moved, and every text gives a tree. Names are to be folded to lower case.
///
/// The content of a `template` is the content of its element here, and no tree of its own. The standard lets a short text reopen formatting
/// elements without end; the elements that are reopened are limited to the number of bytes of the text, and at least 4096.
class HtmlTreeBuilder final : public TreeBuilder {
protected:
    void fill(Document& document, ParseSettings settings, ParseErrorList& errors) override;
    void fillFragment(Document& document, std::string_view context, ParseSettings settings, ParseErrorList& errors) override;
};

} // namespace brindle::html
