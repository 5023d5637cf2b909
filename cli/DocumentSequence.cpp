#include "cli/DocumentSequence.hpp"

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "foundation/Text.hpp"

#include <utility>

namespace brindle {

namespace {

std::string_view callName(const SyndicatedFeedParserResult& result) {
    if (result)
        return "success";
    switch (result.error().kind) {
    case SyndicatedFeedParserError::Case::parseError:
        return "parseError";
    case SyndicatedFeedParserError::Case::emptyString:
        return "emptyString";
    case SyndicatedFeedParserError::Case::invalidFeed:
        break;
    }
    return "invalidFeed";
}

} // namespace

DocumentSequence::DocumentSequence(std::optional<SyndicatedFeedKind> kind, std::shared_ptr<const Clock> clock)
    : _kind(kind), _clock(std::move(clock)),
      _feed(std::make_shared<SyndicatedFeed>(kind.value_or(SyndicatedFeedKind::unknown), _clock->now())) {}

DocumentSequence::Result DocumentSequence::read(std::string bytes) {
    DecodedDocument document = decodeDocument(std::move(bytes));
    Result result;
    result.encoding = document.encoding;
    if (_kind) {
        parse(*_kind, std::move(document.text), result);
        return result;
    }
    if (document.text.empty()) {
        result.outcome = Outcome::noData;
        return result;
    }
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    result.detected = kind;
    if (kind == SyndicatedFeedKind::unknown)
        return result;
    if (!isSettled(_feed->kind))
        _feed = std::make_shared<SyndicatedFeed>(kind, _clock->now());
    if (kind == SyndicatedFeedKind::html)
        result.outcome = Outcome::html;
    else
        parse(kind, std::move(document.text), result);
    return result;
}

void DocumentSequence::parse(SyndicatedFeedKind kind, std::string text, Result& result) {
    const auto parser = makeFeedParser(kind, _feed, std::move(text), result.encoding, _clock);
    if (!parser)
        return;
    parser->parse([&result](const SyndicatedFeedParserResult& reported) {
        result.handlerCalls.push_back(callName(reported));
        result.outcome = reported ? Outcome::finished : Outcome::invalidFeed;
    });
}

void DocumentSequence::markRead(std::string_view effectiveIdentifier) {
    for (const std::shared_ptr<SyndicatedEntry>& entry : _feed->entries) {
        if (entry->effectiveIdentifier() == effectiveIdentifier)
            entry->setIsRead(true);
    }
}

std::string_view name(DocumentSequence::Outcome outcome) {
    switch (outcome) {
    case DocumentSequence::Outcome::finished:
        return "finished";
    case DocumentSequence::Outcome::noData:
        return "noData";
    case DocumentSequence::Outcome::invalidFeed:
        return "invalidFeed";
    case DocumentSequence::Outcome::html:
        break;
    }
    return "html";
}

std::string kindName(SyndicatedFeedKind kind) {
    return text::lowercasedASCII(displayString(kind));
}

} // namespace brindle
