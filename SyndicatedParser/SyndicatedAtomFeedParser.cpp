#include "SyndicatedParser/SyndicatedAtomFeedParser.hpp"

#include "SyndicatedParser/FeedDate.hpp"
#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Text.hpp"

#include <utility>

namespace brindle {

namespace {

constexpr FeedElementSet rootTags = {FeedElement::title, FeedElement::id, FeedElement::updated, FeedElement::subtitle};

constexpr FeedElementSet entryTags = {
    FeedElement::title, FeedElement::id, FeedElement::updated, FeedElement::published, FeedElement::rights};

SyndicatedCategory categoryOfAttributes(const XMLAttributes& attributes) {
    SyndicatedCategory category;
    if (const std::optional<std::string_view> term = attributes["term"])
        category.setTerm(std::string(*term));
    if (const std::optional<std::string_view> label = attributes["label"])
        category.setLabel(std::string(*label));
    return category;
}

} // namespace

void SyndicatedAtomFeedParser::startElement(FeedElement element, const XMLAttributes& attributes) {
    if (!_entryTag)
        startFeedElement(element, attributes);
    if (element == FeedElement::entry) {
        _entryTag = true;
        beginEntry();
    }
    if (_entryTag)
        startEntryElement(element, attributes);
}

void SyndicatedAtomFeedParser::startFeedElement(FeedElement element, const XMLAttributes& attributes) {
    if (rootTags.holds(element))
        collectCharacters();
    if (element == FeedElement::category)
        _feed->categories.push_back(categoryOfAttributes(attributes));
    if (element != FeedElement::link)
        return;
    const std::optional<std::string_view> href = attributes["href"];
    const std::optional<std::string_view> rel = attributes["rel"];
    if (!href || !rel)
        return;
    if (std::optional<URL> url = sanitizedURL(std::nullopt, *href))
        _feed->links.push_back({std::move(url), std::string(attributes["title"].value_or("")), linkRelation(*rel), 0});
}

void SyndicatedAtomFeedParser::startEntryElement(FeedElement element, const XMLAttributes& attributes) {
    if (entryTags.holds(element))
        collectCharacters();
    if (element == FeedElement::summary || element == FeedElement::content) {
        // Kept as is: only this very word stands for markup; "xhtml" and "HTML" do not.
        const bool isHTML = attributes["type"] == "html";
        _currentContent =
            std::make_shared<SyndicatedContent>(isHTML ? SyndicatedContent::MIMEType::raw : SyndicatedContent::MIMEType::plain);
        collectCharacters();
    }
    if (element == FeedElement::category)
        _currentEntry->categories.push_back(categoryOfAttributes(attributes));
    if (element == FeedElement::link)
        readEntryLink(attributes);
}

void SyndicatedAtomFeedParser::readEntryLink(const XMLAttributes& attributes) {
    const std::optional<std::string_view> href = attributes["href"];
    if (!href)
        return;
    std::optional<URL> url = sanitizedURL(std::nullopt, *href);
    if (!url)
        return;
    // Kept as is: a link without "rel" is no alternate link here, though RFC 4287 4.2.7.2 makes it one.
    const SyndicatedLinkRelation relation = linkRelation(attributes["rel"].value_or(""));
    const std::string_view length = attributes["length"].value_or("");
    if (relation == SyndicatedLinkRelation::enclosure) {
        const SyndicatedEnclosure::Kind kind = SyndicatedEnclosure::kindOfMIMEType(attributes["type"].value_or(""));
        _currentEntry->enclosures.push_back({std::move(*url), text::lenientInteger(length), kind});
        return;
    }
    _currentEntry->links.push_back(
        {std::move(url), std::string(attributes["title"].value_or("")), relation, text::integer(length).value_or(0)});
}

void SyndicatedAtomFeedParser::endElement(FeedElement element, const std::string& collectedText) {
    if (element == FeedElement::entry) {
        _entryTag = false;
        endEntry();
    }
    if (_entryTag)
        endEntryElement(element, collectedText);
    else
        endFeedElement(element, collectedText);
}

void SyndicatedAtomFeedParser::endFeedElement(FeedElement element, const std::string& collectedText) {
    switch (element) {
    case FeedElement::title:
        _feed->title = stringByRemovingHTMLEntities(collectedText);
        break;
    case FeedElement::id:
        _feed->identifier = collectedText;
        break;
    case FeedElement::updated:
        _feed->dateUpdated = parseFeedDate(collectedText).value_or(_feed->dateUpdated);
        break;
    case FeedElement::subtitle:
        _feed->subtitle = stringByRemovingHTMLEntities(collectedText);
        break;
    default:
        break;
    }
}

void SyndicatedAtomFeedParser::endEntryElement(FeedElement element, const std::string& collectedText) {
    SyndicatedEntry& entry = *_currentEntry;
    const auto takeContent = [this, &collectedText] {
        _currentContent->setContent(collectedText);
        return std::exchange(_currentContent, nullptr);
    };
    switch (element) {
    case FeedElement::title:
        entry.title = stringByRemovingHTMLEntities(collectedText);
        break;
    case FeedElement::id:
        entry.identifier = collectedText;
        break;
    case FeedElement::updated:
        entry.dateUpdated = parseFeedDate(collectedText).value_or(entry.dateUpdated);
        break;
    case FeedElement::content:
        if (_currentContent)
            entry.setContent(takeContent());
        break;
    case FeedElement::summary:
        if (_currentContent)
            entry.summary = takeContent();
        break;
    case FeedElement::published:
        if (const std::optional<Date> date = parseFeedDate(collectedText))
            entry.dateCreated = entry.dateUpdated = *date;
        break;
    case FeedElement::rights:
        entry.copyright = stringByRemovingHTMLEntities(collectedText);
        break;
    default:
        break;
    }
}

} // namespace brindle
