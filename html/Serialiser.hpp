#pragma once

#include <cstddef>
#include <string>

#include "html/DataNodes.hpp"
#include "html/Element.hpp"
#include "html/OutputBuffer.hpp"
#include "html/OutputSettings.hpp"

namespace brindle::html {

/// Writes a tree as text: every element closed, every attribute quoted, every special character a reference.
///
/// Under pretty printing an element stands on a new line if its tag or its parent's is formatted as a block; so does the first text of a
/// block, unless it is blank, and the end tag of a block that has children. White space in text is made single blanks, save in elements
/// that preserve it. Lines are indented by their depth, the node that is written having depth 0; indentation stops growing at
/// `deepestIndentation`, so that the text of a deep tree stays in proportion to the tree.
///
/// Under XML syntax, attributes whose key is no XML Name are left out, since no reader of XML would take them.
class Serialiser {
public:
    static constexpr std::size_t deepestIndentation = 30;

    explicit Serialiser(const OutputSettings& settings) noexcept : _settings(settings) {}

    /// The text of a node with its descendants; that of a document has no tag of its own. Takes time by the size of the tree.
    std::string serialise(const Node& top) const;

private:
    void open(OutputBuffer& output, const Node& node, std::size_t depth) const;
    void close(OutputBuffer& output, const Element& element, std::size_t depth) const;
    void openElement(OutputBuffer& output, const Element& element, std::size_t depth) const;
    void writeAttributes(OutputBuffer& output, const Attributes& attributes) const;
    void writeText(OutputBuffer& output, const TextNode& text, std::size_t depth) const;
    void writeDocumentType(OutputBuffer& output, const DocumentType& type) const;
    void startLine(OutputBuffer& output, std::size_t depth) const;

    bool formatsAsBlock(const Element* element) const noexcept;
    bool isXml() const noexcept { return _settings.syntax() == OutputSettings::Syntax::xml; }

    OutputSettings _settings;
};

} // namespace brindle::html
