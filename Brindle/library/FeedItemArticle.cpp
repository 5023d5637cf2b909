#include "Brindle/library/FeedItemArticle.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "foundation/Console.hpp"
#include "foundation/FatalError.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace brindle {

namespace {

template <typename T>
const T* value(const CodedDictionary& dictionary, std::string_view key) {
    const auto field = std::find_if(dictionary.begin(), dictionary.end(), [&](const auto& pair) { return pair.first == key; });
    return field == dictionary.end() ? nullptr : std::get_if<T>(&field->second);
}

/// The case of a stored raw value; a value that is no case's counts as the first.
template <typename Enumeration>
Enumeration enumeration(std::int64_t raw, std::int64_t count) {
    return static_cast<Enumeration>(raw >= 0 && raw < count ? raw : 0);
}

SyndicatedLink decodeLink(const CodedDictionary& dictionary) {
    SyndicatedLink link;
    if (const auto* url = value<std::string>(dictionary, "linkURL"))
        link.url = URL::make(*url);
    if (const auto* relation = value<std::int64_t>(dictionary, "linkRelation"))
        link.relation = enumeration<SyndicatedLinkRelation>(*relation, 6);
    return link;
}

std::optional<SyndicatedEnclosure> decodeEnclosure(const CodedDictionary& dictionary) {
    const auto* text = value<std::string>(dictionary, "enclosureURL");
    const auto* length = value<std::int64_t>(dictionary, "enclosureLength");
    const auto* kind = value<std::int64_t>(dictionary, "enclosureType");
    if (!text || !length || !kind || text->empty())
        return std::nullopt;
    auto url = URL::make(*text);
    // Kept as is: the program writes URLs only, so any other text means that its own archive was tampered with.
    if (!url)
        fatalError("An archived enclosure has no valid URL: " + *text);
    return SyndicatedEnclosure{*std::move(url), *length, enumeration<SyndicatedEnclosure::Kind>(*kind, 4)};
}

CodedDictionary encodeLink(const SyndicatedLink& link) {
    CodedDictionary dictionary;
    if (link.url)
        dictionary.emplace_back("linkURL", link.url->absoluteString());
    dictionary.emplace_back("linkRelation", static_cast<std::int64_t>(link.relation));
    return dictionary;
}

CodedDictionary encodeEnclosure(const SyndicatedEnclosure& enclosure) {
    return {{"enclosureURL", enclosure.url.absoluteString()}, {"enclosureLength", enclosure.length},
        {"enclosureType", static_cast<std::int64_t>(enclosure.kind)}};
}

} // namespace

FeedItemArticle::FeedItemArticle(std::shared_ptr<SyndicatedEntry> articleEntry, std::weak_ptr<FeedItem> item)
    : entry(std::move(articleEntry)), feedItem(std::move(item)) {}

std::shared_ptr<FeedItemArticle> FeedItemArticle::decode(const Decoder& decoder, Date now) {
    const auto entry = std::make_shared<SyndicatedEntry>(now);
    entry->identifier = decoder.decodeText("id").value_or(std::string());
    entry->title = decoder.decodeText("title").value_or(std::string());
    // Kept as is: an article that was stored without content comes back with an empty one, for the readers of saved articles show
    // `content`.
    const bool isRaw = decoder.decodeInteger("contentMIME") == 1;
    const auto content = std::make_shared<SyndicatedContent>(isRaw ? SyndicatedContent::MIMEType::raw : SyndicatedContent::MIMEType::plain);
    content->setContent(decoder.decodeText("contentRaw").value_or(std::string()));
    entry->setContent(content);
    for (const CodedDictionary& link : decoder.decodeDictionaries("links").value_or(std::vector<CodedDictionary>()))
        entry->links.push_back(decodeLink(link));
    for (const CodedDictionary& dictionary : decoder.decodeDictionaries("enclosures").value_or(std::vector<CodedDictionary>())) {
        if (auto enclosure = decodeEnclosure(dictionary))
            entry->enclosures.push_back(*std::move(enclosure));
    }
    return std::make_shared<FeedItemArticle>(entry, std::dynamic_pointer_cast<FeedItem>(decoder.decodeObject("parentFeedItem")));
}

FeedItemArticle::~FeedItemArticle() {
    Console::print("Removing FeedItemArticle");
}

std::string FeedItemArticle::articleStateKey() const {
    const auto url = entry->preferredLinkURL();
    const std::string_view link = url ? std::string_view(url->absoluteString()) : std::string_view();
    std::string key;
    key.reserve(entry->title.size() + 1 + link.size());
    key += entry->title;
    key += '&';
    key += link;
    return key;
}

std::vector<std::string_view> FeedItemArticle::archiveClasses() const {
    return {"FeedItemArticle"};
}

void FeedItemArticle::encode(Coder& coder) const {
    coder.encode("id", entry->identifier);
    coder.encode("title", entry->title);
    if (const auto& content = entry->content()) {
        coder.encode("contentRaw", content->content());
        coder.encode("contentMIME", static_cast<std::int64_t>(content->type()));
    }
    std::vector<CodedDictionary> links;
    std::transform(entry->links.begin(), entry->links.end(), std::back_inserter(links), encodeLink);
    coder.encode("links", links);
    std::vector<CodedDictionary> enclosures;
    std::transform(entry->enclosures.begin(), entry->enclosures.end(), std::back_inserter(enclosures), encodeEnclosure);
    coder.encode("enclosures", enclosures);
    if (const auto parent = feedItem.lock())
        coder.encode("parentFeedItem", std::static_pointer_cast<const Coding>(parent));
}

} // namespace brindle
