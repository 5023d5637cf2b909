#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "html/Document.hpp"
#include "html/ParseErrorList.hpp"
#include "html/ParseSettings.hpp"

namespace brindle::html {

/// Makes a tree of a text. A builder may be used again and again, by one thread at a time.
class TreeBuilder {
public:
    TreeBuilder() = default;
    TreeBuilder(const TreeBuilder&) = delete;
    TreeBuilder& operator=(const TreeBuilder&) = delete;
    virtual ~TreeBuilder() = default;

    /// Makes the document of `text`, which is UTF-8. Errors in the markup go to `errors`; `Error` is thrown only on an internal failure.
    std::unique_ptr<Document> build(std::string text, std::string baseURI, ParseSettings settings, ParseErrorList& errors);

    /// Makes what `text` stands for as the content of an element; the nodes are the children of the document. `context` is the element's
    /// name, such as "td", "svg path" or "math mi". Throws `Error` on an internal failure, and where the builder has no such thing.
    std::unique_ptr<Document> buildFragment(
        std::string text, std::string_view context, std::string baseURI, ParseSettings settings, ParseErrorList& errors);

protected:
    /// Fills a document that holds its text and nothing else.
    virtual void fill(Document& document, ParseSettings settings, ParseErrorList& errors) = 0;

    /// The same for a fragment. Unless it is overridden, throws `Error`.
    virtual void fillFragment(Document& document, std::string_view context, ParseSettings settings, ParseErrorList& errors);
};

} // namespace brindle::html
