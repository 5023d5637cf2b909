#include "SyndicatedParser/SyndicatedFeedKind.hpp"

#include "foundation/Text.hpp"

#include <string>

namespace brindle {

std::string_view displayString(SyndicatedFeedKind kind) {
    switch (kind) {
    case SyndicatedFeedKind::unknown:
        break;
    case SyndicatedFeedKind::rss:
        return "RSS";
    case SyndicatedFeedKind::rdf:
        return "RDF";
    case SyndicatedFeedKind::atom:
        return "Atom";
    case SyndicatedFeedKind::html:
        return "HTML";
    case SyndicatedFeedKind::opml:
        return "OPML";
    case SyndicatedFeedKind::json:
        return "JSON";
    }
    return "Unknown";
}

SyndicatedFeedKind feedKindOfRootElement(std::string_view name) {
    const std::string lowercased = text::lowercased(name);
    if (lowercased == "rss")
        return SyndicatedFeedKind::rss;
    if (lowercased.starts_with("rdf"))
        return SyndicatedFeedKind::rdf;
    if (lowercased == "feed")
        return SyndicatedFeedKind::atom;
    if (lowercased == "html")
        return SyndicatedFeedKind::html;
    if (lowercased == "opml")
        return SyndicatedFeedKind::opml;
    return SyndicatedFeedKind::unknown;
}

bool isSettled(SyndicatedFeedKind kind) {
    return kind != SyndicatedFeedKind::unknown && kind != SyndicatedFeedKind::html;
}

} // namespace brindle
