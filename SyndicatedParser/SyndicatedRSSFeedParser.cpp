#include "SyndicatedParser/SyndicatedRSSFeedParser.hpp"

#include "SyndicatedParser/FeedDate.hpp"
#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Text.hpp"

#include <utility>

namespace brindle {

namespace {

constexpr FeedElementSet channelTags = {FeedElement::title, FeedElement::link, FeedElement::source, FeedElement::description,
    FeedElement::language, FeedElement::pubdate, FeedElement::lastbuilddate, FeedElement::category};

constexpr FeedElementSet itemTags = {FeedElement::title, FeedElement::link, FeedElement::description, FeedElement::guid,
    FeedElement::pubdate, FeedElement::category, FeedElement::author};

SyndicatedCategory categoryOfTerm(const std::string& term) {
    SyndicatedCategory category;
    category.setTerm(term);
    return category;
}

} // namespace

void SyndicatedRSSFeedParser::startElement(FeedElement element, const XMLAttributes& attributes) {
    if (element == FeedElement::channel)
        _channelTag = true;
    if (element == FeedElement::item) {
        _itemTag = true;
        beginEntry();
    }
    if (_channelTag && channelTags.holds(element))
        collectCharacters();
    if (!_itemTag)
        return;
    if (itemTags.holds(element))
        collectCharacters();
    if (element == FeedElement::link) {
        // Kept as is: an item's link by attribute belongs to the feed.
        if (const std::optional<std::string_view> href = attributes["href"])
            _feed->links.push_back({sanitizedURL(std::nullopt, *href), {}, SyndicatedLinkRelation::self, 0});
    }
    if (element == FeedElement::enclosure)
        readEnclosure(attributes);
}

void SyndicatedRSSFeedParser::readEnclosure(const XMLAttributes& attributes) {
    const std::optional<std::string_view> address = attributes["url"];
    const std::optional<std::string_view> length = attributes["length"];
    const std::optional<std::string_view> type = attributes["type"];
    if (!address || !length || !type)
        return;
    if (std::optional<URL> url = URL::make(*address))
        _currentEntry->enclosures.push_back(
            {std::move(*url), text::integer(*length).value_or(0), SyndicatedEnclosure::kindOfMIMEType(*type)});
}

void SyndicatedRSSFeedParser::endElement(FeedElement element, const std::string& collectedText) {
    if (element == FeedElement::channel)
        _channelTag = false;
    if (element == FeedElement::item) {
        _itemTag = false;
        endEntry();
    }
    if (_channelTag && !_itemTag)
        endChannelElement(element, collectedText);
    if (_itemTag)
        endItemElement(element, collectedText);
}

// Kept as is: the elements of a channel's image are read as the channel's own.
void SyndicatedRSSFeedParser::endChannelElement(FeedElement element, const std::string& collectedText) {
    switch (element) {
    case FeedElement::title:
        _feed->title = stringByRemovingHTMLEntities(collectedText);
        break;
    case FeedElement::link:
    case FeedElement::source:
        if (std::optional<URL> url = sanitizedURL(std::nullopt, collectedText)) {
            const bool isSource = element == FeedElement::source;
            _feed->links.push_back({std::move(url), {}, isSource ? SyndicatedLinkRelation::self : SyndicatedLinkRelation::alternate, 0});
        }
        break;
    case FeedElement::description:
        _feed->subtitle = stringByRemovingHTMLEntities(collectedText);
        break;
    case FeedElement::language:
        _feed->languageCode = collectedText;
        break;
    case FeedElement::pubdate:
        _feed->datePublished = parseFeedDate(collectedText).value_or(_feed->datePublished);
        break;
    case FeedElement::lastbuilddate:
        _feed->dateUpdated = parseFeedDate(collectedText).value_or(_feed->dateUpdated);
        break;
    case FeedElement::category:
        _feed->categories.push_back(categoryOfTerm(collectedText));
        break;
    default:
        break;
    }
}

void SyndicatedRSSFeedParser::endItemElement(FeedElement element, const std::string& collectedText) {
    SyndicatedEntry& entry = *_currentEntry;
    switch (element) {
    case FeedElement::title:
        entry.title = stringByRemovingHTMLEntities(collectedText);
        break;
    case FeedElement::link:
        if (std::optional<URL> url = sanitizedURL(std::nullopt, collectedText))
            entry.links.push_back({std::move(url), {}, SyndicatedLinkRelation::alternate, 0});
        break;
    case FeedElement::description:
        entry.setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, collectedText));
        break;
    case FeedElement::guid:
        entry.identifier = collectedText;
        break;
    case FeedElement::pubdate:
        if (const std::optional<Date> date = parseFeedDate(collectedText))
            entry.dateCreated = entry.dateUpdated = *date;
        break;
    case FeedElement::lastbuilddate:
        entry.dateUpdated = parseFeedDate(collectedText).value_or(entry.dateUpdated);
        break;
    case FeedElement::category:
        entry.categories.push_back(categoryOfTerm(collectedText));
        break;
    case FeedElement::author:
        entry.copyright = collectedText;
        break;
    default:
        break;
    }
}

} // namespace brindle
