#pragma once

#include "foundation/StringEncoding.hpp"

#include <string>
#include <string_view>

namespace brindle {

/// A document's text as a strict XML 1.0 reader can take it: UTF-8, without byte order mark, without white space before the XML
/// declaration, and without characters that XML 1.0 forbids, written out or by number. Copies only where something must change. Thread:
/// any; moves with its parser.
class XMLInput {
public:
    /// Borrows `data`. `encoding` is the one that decoded it before; which encoding counts is told at `XMLParser`.
    XMLInput(std::string_view data, StringEncoding encoding);
    XMLInput(const XMLInput&) = delete;
    XMLInput& operator=(const XMLInput&) = delete;

    std::string_view text() const { return _text; }

    /// Where the piece of the text that starts at `begin` ends, so that no piece is much larger than four megabytes: libxml2 refuses to
    /// look further. No CDATA section, comment or processing instruction is cut, whatever its size.
    std::size_t endOfPiece(std::size_t begin) const;

    /// How many lines were passed over before the text.
    int skippedLines() const { return _skippedLines; }

private:
    std::string _decoded;
    std::string _cleaned;
    std::string_view _text;
    int _skippedLines = 0;
};

/// Whether any tag in `text` has more attributes than a document of good faith would give one. libxml2 compares each with each, so that a
/// single tag of a megabyte would keep it for minutes.
bool hasTooManyAttributes(std::string_view text);

} // namespace brindle
