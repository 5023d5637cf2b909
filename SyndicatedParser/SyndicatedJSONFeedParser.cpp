#include "SyndicatedParser/SyndicatedJSONFeedParser.hpp"

#include "foundation/ISO8601DateFormatter.hpp"

#include <utility>

namespace brindle {

namespace {

using Text = std::optional<std::string_view>;

void readText(const JSON::Dictionary& json, std::string_view key, std::string& field) {
    if (const Text text = json.string(key))
        field = *text;
}

std::vector<JSON> elements(const JSON::Dictionary& json, std::string_view key) {
    const std::optional<JSON> value = json[key];
    return value ? value->array().value_or(std::vector<JSON>()) : std::vector<JSON>();
}

std::shared_ptr<SyndicatedContent> content(SyndicatedContent::MIMEType type, std::string_view text) {
    return std::make_shared<SyndicatedContent>(type, std::string(text));
}

SyndicatedCategory categoryOfTag(const JSON& tag) {
    SyndicatedCategory category;
    category.setTerm(std::string(tag.string().value_or("")));
    return category;
}

std::optional<SyndicatedEnclosure> enclosureOfAttachment(const JSON& attachment) {
    const std::optional<JSON::Dictionary> json = attachment.dictionary();
    if (!json)
        return std::nullopt;
    const Text address = json->string("url");
    const Text type = json->string("mime_type");
    std::optional<URL> url = address ? URL::make(*address) : std::nullopt;
    if (!url || !type)
        return std::nullopt;
    const std::optional<JSON> size = (*json)["size_in_bytes"];
    const std::int64_t length = size ? size->integer().value_or(0) : 0;
    return SyndicatedEnclosure{std::move(*url), length, SyndicatedEnclosure::kindOfMIMEType(*type)};
}

} // namespace

void SyndicatedJSONFeedParser::parse(CompletionHandler handler) {
    SyndicatedFeedParser::parse(handler);
    const std::optional<JSON::Dictionary> json = JSON(_parseString.view()).dictionary();
    // Kept as is: a failure of the common steps has been reported by them, and may be reported here again.
    if (!json) {
        handler(tl::unexpected(SyndicatedFeedParserError{SyndicatedFeedParserError::Case::invalidFeed, std::nullopt}));
        return;
    }
    readFeed(*json);
    restoreEntryStates();
    if (_completionHandler)
        _completionHandler(_feed);
}

void SyndicatedJSONFeedParser::readFeed(const JSON::Dictionary& json) {
    readText(json, "version", _feed->version);
    readText(json, "title", _feed->title);
    // Kept as is: the relations are the other way round from what the names suggest, so that a feed's primary URL is its own address.
    if (const Text home = json.string("home_page_url"))
        _feed->links.push_back({URL::make(*home), {}, SyndicatedLinkRelation::self, 0});
    if (const Text address = json.string("feed_url"))
        _feed->links.push_back({URL::make(*address), {}, SyndicatedLinkRelation::alternate, 0});
    readText(json, "description", _feed->subtitle);
    for (const JSON& item : elements(json, "items")) {
        if (const std::optional<JSON::Dictionary> members = item.dictionary())
            _feed->entries.push_back(entry(*members));
    }
}

// Kept as is: the entry does not know its feed, unlike those of the other formats.
std::shared_ptr<SyndicatedEntry> SyndicatedJSONFeedParser::entry(const JSON::Dictionary& json) const {
    auto result = std::make_shared<SyndicatedEntry>(_clock->now());
    readText(json, "id", result->identifier);
    readText(json, "title", result->title);
    readTexts(json, *result);
    readDates(json, *result);
    readLinks(json, *result);
    for (const JSON& tag : elements(json, "tags"))
        result->categories.push_back(categoryOfTag(tag));
    for (const JSON& attachment : elements(json, "attachments")) {
        if (std::optional<SyndicatedEnclosure> enclosure = enclosureOfAttachment(attachment))
            result->enclosures.push_back(std::move(*enclosure));
    }
    return result;
}

void SyndicatedJSONFeedParser::readLinks(const JSON::Dictionary& json, SyndicatedEntry& entry) const {
    const auto add = [&](std::string_view key, SyndicatedLinkRelation relation) {
        const Text address = json.string(key);
        if (std::optional<URL> url = address ? URL::make(*address) : std::nullopt)
            entry.links.push_back({std::move(url), {}, relation, 0});
    };
    add("url", SyndicatedLinkRelation::alternate);
    add("external_url", SyndicatedLinkRelation::related);
}

void SyndicatedJSONFeedParser::readTexts(const JSON::Dictionary& json, SyndicatedEntry& entry) const {
    if (const Text html = json.string("content_html"))
        entry.setContent(content(SyndicatedContent::MIMEType::raw, *html));
    else if (const Text plain = json.string("content_text"))
        entry.setContent(content(SyndicatedContent::MIMEType::plain, *plain));
    if (const Text summary = json.string("summary"))
        entry.summary = content(SyndicatedContent::MIMEType::plain, *summary);
}

void SyndicatedJSONFeedParser::readDates(const JSON::Dictionary& json, SyndicatedEntry& entry) const {
    if (const Text published = json.string("date_published"))
        entry.dateCreated = entry.dateUpdated = dateOf(*published);
    if (const Text modified = json.string("date_modified"))
        entry.dateUpdated = dateOf(*modified);
}

// Kept as is: a text that is no date stands for the present moment, where the other formats leave the field alone.
Date SyndicatedJSONFeedParser::dateOf(std::string_view text) const {
    return ISO8601DateFormatter::date(text).value_or(_clock->now());
}

} // namespace brindle
