#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"
#include "foundation/Timer.hpp"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace brindle {

/// Waits until feeds were answered: by a parse, a failure, or the finding that they can't fetch now; and until the icon step that follows
/// each parse is over. The first answer of a feed counts. Whether all are there is known without a look at the feeds. Thread: main.
class FeedAnswers : public FeedItemDelegate {
public:
    enum class Outcome { finished, connection, noData, noURL, invalidFeed, discovered, queued, timeout };

    struct Answer {
        Outcome outcome = Outcome::timeout;
        std::size_t newArticles = 0;
    };

    /// Is told how many feeds were answered, and of how many.
    using Progress = std::function<void(std::size_t answered, std::size_t expected)>;

    /// Counts on an answer of `item`, whose fetch or parse has been started. `openIconSteps` are those that follow earlier parses.
    void expect(FeedItem& item, std::size_t openIconSteps = 0);
    /// Runs the main loop until all that is expected has come, or for `limit` of real time. What is missing then is `timeout`.
    void wait(std::chrono::milliseconds limit, const Progress& progress = {});

    /// `timeout` for an item that was never expected.
    Answer answer(const FeedItem& item) const;

    void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) override;
    void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) override;
    void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) override;
    void feedItemDidEndIconStep(FeedItem& feedItem) override;

private:
    struct Expected {
        std::weak_ptr<Feed> item;
        std::optional<Answer> answer;
        std::size_t openIconSteps = 0;
    };

    void settle(const FeedItem& item, Answer answer);
    void settleQueued();

    std::unordered_map<const FeedItem*, Expected> _expected;
    std::size_t _unanswered = 0;
    std::size_t _openIconSteps = 0;
    Progress _progress;
};

/// "finished", "connection" and so on.
std::string_view name(FeedAnswers::Outcome outcome);

} // namespace brindle
