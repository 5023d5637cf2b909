#pragma once

#include <string_view>

namespace brindle {

/// The kind of a fetched document.
enum class SyndicatedFeedKind { unknown, rss, rdf, atom, html, opml, json };

/// "Unknown", "RSS", "RDF", "Atom", "HTML", "OPML", "JSON".
std::string_view displayString(SyndicatedFeedKind kind);

/// The kind for a root element's name, compared in lower case; never `json`.
SyndicatedFeedKind feedKindOfRootElement(std::string_view name);

/// Whether a feed of that kind keeps it, whatever document comes next. The feed of any other is replaced by one of the document's kind.
bool isSettled(SyndicatedFeedKind kind);

} // namespace brindle
