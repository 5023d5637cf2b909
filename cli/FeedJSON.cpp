#include "cli/FeedJSON.hpp"

#include "cli/JSONText.hpp"
#include "foundation/Text.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace brindle {

namespace {

using OrderedJSON = nlohmann::ordered_json;

OrderedJSON urlJSON(const std::optional<URL>& url) {
    return url ? OrderedJSON(url->absoluteString()) : OrderedJSON();
}

std::string_view name(SyndicatedEnclosure::Kind kind) {
    switch (kind) {
    case SyndicatedEnclosure::Kind::other:
        break;
    case SyndicatedEnclosure::Kind::audio:
        return "audio";
    case SyndicatedEnclosure::Kind::video:
        return "video";
    case SyndicatedEnclosure::Kind::image:
        return "image";
    }
    return "other";
}

OrderedJSON contentJSON(const std::shared_ptr<SyndicatedContent>& content) {
    if (!content)
        return nullptr;
    const bool isRaw = content->type() == SyndicatedContent::MIMEType::raw;
    return {{"MIMEType", isRaw ? "raw" : "plain"}, {"content", content->content()}};
}

OrderedJSON categoryJSON(const SyndicatedCategory& category) {
    return {{"term", category.term()}, {"label", category.label()}};
}

OrderedJSON enclosureJSON(const SyndicatedEnclosure& enclosure) {
    return {{"url", enclosure.url.absoluteString()}, {"length", enclosure.length}, {"kind", name(enclosure.kind)}};
}

template <typename T>
OrderedJSON list(const std::vector<T>& values, OrderedJSON (*json)(const T&)) {
    OrderedJSON array = OrderedJSON::array();
    for (const T& value : values)
        array.push_back(json(value));
    return array;
}

/// For what has no order of its own.
template <typename T>
OrderedJSON sortedList(const std::vector<T>& values, OrderedJSON (*json)(const T&)) {
    std::vector<std::pair<std::string, OrderedJSON>> printed;
    for (const T& value : values) {
        OrderedJSON element = json(value);
        std::string text = jsonLine(element);
        printed.emplace_back(std::move(text), std::move(element));
    }
    std::stable_sort(printed.begin(), printed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    OrderedJSON array = OrderedJSON::array();
    for (auto& [text, element] : printed)
        array.push_back(std::move(element));
    return array;
}

OrderedJSON entryJSON(const std::shared_ptr<SyndicatedEntry>& pointer) {
    const SyndicatedEntry& entry = *pointer;
    return {{"identifier", entry.identifier}, {"title", entry.title}, {"dateCreated", iso8601String(entry.dateCreated)},
        {"dateUpdated", iso8601String(entry.dateUpdated)}, {"content", contentJSON(entry.content())},
        {"summary", contentJSON(entry.summary)}, {"summaryIsContent", entry.summary && entry.summary == entry.content()},
        {"copyright", entry.copyright}, {"categories", sortedList(entry.categories, categoryJSON)},
        {"links", sortedList(entry.links, linkJSON)}, {"enclosures", sortedList(entry.enclosures, enclosureJSON)},
        {"state", entry.isRead() ? "read" : "unread"}, {"effectiveIdentifier", entry.effectiveIdentifier()},
        {"preferredLinkURL", urlJSON(entry.preferredLinkURL())}};
}

} // namespace

OrderedJSON linkJSON(const SyndicatedLink& link) {
    return {{"url", urlJSON(link.url)}, {"title", link.title}, {"relation", name(link.relation)}, {"length", link.length}};
}

OrderedJSON feedJSON(const SyndicatedFeed& feed) {
    return {{"kind", text::lowercasedASCII(displayString(feed.kind))}, {"identifier", feed.identifier}, {"title", feed.title},
        {"subtitle", feed.subtitle}, {"languageCode", feed.languageCode}, {"copyright", feed.copyright},
        {"datePublished", iso8601String(feed.datePublished)}, {"dateUpdated", iso8601String(feed.dateUpdated)}, {"version", feed.version},
        {"primaryURL", urlJSON(feed.primaryURL())}, {"links", list(feed.links, linkJSON)},
        {"categories", sortedList(feed.categories, categoryJSON)}, {"entries", list(feed.entries, entryJSON)}};
}

} // namespace brindle
