#pragma once

#include "SyndicatedParser/SyndicatedFeedKind.hpp"
#include "foundation/StringEncoding.hpp"

#include <string>

namespace brindle {

/// A fetched document as text, with the encoding that decoded it.
struct DecodedDocument {
    std::string text; ///< empty when nothing could be decoded
    StringEncoding encoding = StringEncoding::utf8;
};

/// Decodes a body: as UTF-8, else as ISO Latin 1. No header, mark or declaration takes part. Thread: any.
DecodedDocument decodeDocument(std::string bytes);

/// Tells what `text` is, by being JSON or by its root element, and replaces markup by the toolkit's balanced rewriting of it. Prints
/// "Could not parse feed: " and the error where the toolkit fails. Thread: any.
SyndicatedFeedKind detectFeedKind(std::string& text);

} // namespace brindle
