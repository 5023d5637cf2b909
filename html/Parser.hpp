#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "html/Document.hpp"
#include "html/ParseError.hpp"
#include "html/ParseSettings.hpp"
#include "html/TreeBuilder.hpp"

namespace brindle::html {

/// How texts are read: a tree builder, what it does with names, and how many errors it keeps. By one thread at a time.
class Parser {
public:
    Parser(std::unique_ptr<TreeBuilder> treeBuilder, ParseSettings settings);

    /// A parser with an `XmlTreeBuilder` that keeps the case of all names.
    static Parser xmlParser();

    /// A parser with an `HtmlTreeBuilder` that folds all names to lower case.
    static Parser htmlParser();

    const ParseSettings& settings() const noexcept { return _settings; }
    void setSettings(ParseSettings settings) noexcept { _settings = settings; }

    /// How many errors of a parse are kept; none by default.
    std::size_t maxErrors() const noexcept { return _maxErrors; }
    void setMaxErrors(std::size_t maxErrors) noexcept { _maxErrors = maxErrors; }

    /// The errors of the last parse, in the order of the text.
    const std::vector<ParseError>& errors() const noexcept { return _errors; }

    /// Makes the document of `text`, which is UTF-8; the base URI is for relative addresses and may be empty.
    /// Throws `Error` on an internal failure only.
    std::unique_ptr<Document> parse(std::string text, std::string baseURI);

    /// Makes what `text` stands for as the content of an element, by the fragment case of the HTML standard (section 13.4); the nodes are
    /// the children of the document. `context` is the name of the element, with "svg " or "math " before it for a foreign one.
    /// Throws `Error` on an internal failure, and for a parser of XML.
    std::unique_ptr<Document> parseFragment(std::string text, std::string_view context, std::string baseURI = {});

private:
    std::unique_ptr<TreeBuilder> _treeBuilder;
    std::size_t _maxErrors = 0;
    std::vector<ParseError> _errors;
    ParseSettings _settings;
};

/// Makes the document of `text` with `parser`, as `Parser::parse` does.
std::unique_ptr<Document> parse(std::string text, std::string baseURI, Parser& parser);

/// Makes the document of `text`, which is UTF-8, by the rules of HTML; the base URI is empty. Throws `Error` on an internal failure only.
std::unique_ptr<Document> parse(std::string text);

} // namespace brindle::html
