#include "SyndicatedParser/SyndicatedLink.hpp"

#include "foundation/Text.hpp"

#include <array>

namespace brindle {

namespace {

constexpr std::array relations = {SyndicatedLinkRelation::alternate, SyndicatedLinkRelation::related, SyndicatedLinkRelation::self,
    SyndicatedLinkRelation::enclosure, SyndicatedLinkRelation::via};

} // namespace

SyndicatedLinkRelation linkRelation(std::string_view text) {
    const std::string lowercased = text::lowercased(text);
    for (const SyndicatedLinkRelation relation : relations) {
        if (name(relation) == lowercased)
            return relation;
    }
    return SyndicatedLinkRelation::unknown;
}

std::string_view name(SyndicatedLinkRelation relation) {
    switch (relation) {
    case SyndicatedLinkRelation::alternate:
        return "alternate";
    case SyndicatedLinkRelation::related:
        return "related";
    case SyndicatedLinkRelation::self:
        return "self";
    case SyndicatedLinkRelation::enclosure:
        return "enclosure";
    case SyndicatedLinkRelation::via:
        return "via";
    case SyndicatedLinkRelation::unknown:
        break;
    }
    return "__unknown__";
}

bool operator==(const SyndicatedLink& a, const SyndicatedLink& b) {
    const bool sameURL = !a.url || !b.url || *a.url == *b.url;
    return a.title == b.title && a.relation == b.relation && sameURL;
}

} // namespace brindle
