#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"

#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// Logs what feeds report, in order.
class FeedItemDelegateFake : public FeedItemDelegate {
public:
    struct Call {
        std::string name;
        const FeedItem* feedItem = nullptr;
        std::vector<std::shared_ptr<FeedItemArticle>> newArticles;
        std::vector<std::shared_ptr<FeedItem>> feedItems;
        std::optional<FeedItemError> error;
    };

    std::vector<Call> calls;        ///< all but the ends of icon steps
    std::size_t endedIconSteps = 0; ///< these come some time after a call, so they are counted apart

    void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) override {
        calls.push_back({"feedItemDidFinishParsing", &feedItem, newArticles, {}, {}});
    }
    void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) override {
        calls.push_back({"feedItemDidDiscoverFeedItems", &feedItem, {}, feedItems, {}});
    }
    void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) override {
        calls.push_back({"feedItemDidFail", &feedItem, {}, {}, error});
    }
    void feedItemHasImageData(FeedItem& feedItem) override { calls.push_back({"feedItemHasImageData", &feedItem, {}, {}, {}}); }
    void feedItemIsInvalid(FeedItem& feedItem) override { calls.push_back({"feedItemIsInvalid", &feedItem, {}, {}, {}}); }
    void feedItemDidEndIconStep(FeedItem&) override { ++endedIconSteps; }
};

} // namespace brindle
