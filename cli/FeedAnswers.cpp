#include "cli/FeedAnswers.hpp"

#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

namespace {

using Outcome = FeedAnswers::Outcome;

Outcome outcomeOf(const std::optional<FeedItemError>& error) {
    const auto* const reported = error ? std::get_if<SyndicatedSessionError>(&*error) : nullptr;
    if (!reported)
        return Outcome::connection;
    switch (reported->kind) {
    case SyndicatedSessionError::Case::noData:
        return Outcome::noData;
    case SyndicatedSessionError::Case::noURL:
        return Outcome::noURL;
    case SyndicatedSessionError::Case::invalidFeed:
        return Outcome::invalidFeed;
    case SyndicatedSessionError::Case::connection:
    case SyndicatedSessionError::Case::other:
        break;
    }
    return Outcome::connection;
}

} // namespace

void FeedAnswers::expect(FeedItem& item, std::size_t openIconSteps) {
    const auto [place, isNew] = _expected.try_emplace(&item, Expected{item.weak_from_this(), std::nullopt, 0});
    if (isNew)
        ++_unanswered;
    place->second.openIconSteps += openIconSteps;
    _openIconSteps += openIconSteps;
    if (item.session().isQueued())
        settle(item, {Outcome::queued, 0});
}

void FeedAnswers::wait(std::chrono::milliseconds limit, const Progress& progress) {
    // A session that comes to wait for the network on its way, after a page led to its feed, says so to nobody.
    constexpr Timer::Interval lookInterval{1.0};
    _progress = progress;
    const auto look = Timer::scheduledTimer(lookInterval, true, [this](Timer&) { settleQueued(); });
    if (_progress)
        _progress(_expected.size() - _unanswered, _expected.size());
    RunLoop::main().runUntil([this] { return _unanswered == 0 && _openIconSteps == 0; }, limit);
    settleQueued();
    _progress = {};
}

FeedAnswers::Answer FeedAnswers::answer(const FeedItem& item) const {
    const auto place = _expected.find(&item);
    return place == _expected.end() ? Answer() : place->second.answer.value_or(Answer());
}

void FeedAnswers::settle(const FeedItem& item, Answer answer) {
    const auto place = _expected.find(&item);
    if (place == _expected.end() || place->second.answer)
        return;
    place->second.answer = answer;
    --_unanswered;
    if (_progress)
        _progress(_expected.size() - _unanswered, _expected.size());
}

void FeedAnswers::settleQueued() {
    if (_unanswered == 0)
        return;
    for (const auto& [pointer, expected] : _expected) {
        const auto item = std::static_pointer_cast<FeedItem>(expected.item.lock());
        if (item && !expected.answer && item->session().isQueued())
            settle(*item, {Outcome::queued, 0});
    }
}

void FeedAnswers::feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) {
    if (const auto place = _expected.find(&feedItem); place != _expected.end()) {
        ++place->second.openIconSteps;
        ++_openIconSteps;
    }
    settle(feedItem, {feedItem.lastConnectionFailed() ? Outcome::connection : Outcome::finished, newArticles.size()});
}

void FeedAnswers::feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>&) {
    settle(feedItem, {Outcome::discovered, 0});
}

void FeedAnswers::feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) {
    // A stored document that can't be read after all is no second reason.
    settle(feedItem, {feedItem.lastConnectionFailed() ? Outcome::connection : outcomeOf(error), 0});
}

void FeedAnswers::feedItemDidEndIconStep(FeedItem& feedItem) {
    const auto place = _expected.find(&feedItem);
    if (place == _expected.end() || place->second.openIconSteps == 0)
        return;
    --place->second.openIconSteps;
    --_openIconSteps;
}

std::string_view name(Outcome outcome) {
    switch (outcome) {
    case Outcome::finished:
        return "finished";
    case Outcome::connection:
        return "connection";
    case Outcome::noData:
        return "noData";
    case Outcome::noURL:
        return "noURL";
    case Outcome::invalidFeed:
        return "invalidFeed";
    case Outcome::discovered:
        return "discovered";
    case Outcome::queued:
        return "queued";
    case Outcome::timeout:
        break;
    }
    return "timeout";
}

} // namespace brindle
