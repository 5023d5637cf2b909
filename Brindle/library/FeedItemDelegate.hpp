#pragma once

#include "SyndicatedParser/SyndicatedSessionError.hpp"

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace brindle {

class FeedItem;
class FeedItemArticle;

/// What a feed failed with: the network's error, or the session's own.
using FeedItemError = std::variant<URLError, SyndicatedSessionError>;

/// Receives what feeds learn, on the main thread.
class FeedItemDelegate {
public:
    virtual ~FeedItemDelegate() = default;
    /// `newArticles` may be empty.
    virtual void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) = 0;
    /// The items belong to no library yet.
    virtual void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) = 0;
    virtual void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) = 0;
    virtual void feedItemHasImageData(FeedItem&) {}
    virtual void feedItemIsInvalid(FeedItem&) {}
    /// The icon step that follows each good parse is over, whatever came of it. Once for each `feedItemDidFinishParsing`.
    virtual void feedItemDidEndIconStep(FeedItem&) {}
};

} // namespace brindle
