#pragma once

#include "Brindle/library/CollectionEntity.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Date.hpp"

#include <memory>

namespace brindle {

/// The articles of all feeds that were updated on the present day of the user's calendar, newest first; those of equal dates in no order.
/// A new day counts from the next refresh on. Thread: main.
class TodayCollectionEntity : public CollectionEntity<FeedItemArticle> {
public:
    TodayCollectionEntity(std::weak_ptr<const FeedsManager> feedsManager, std::shared_ptr<const Clock> clock);

    /// Fatal when the library is gone.
    void refresh() override;

private:
    std::weak_ptr<const FeedsManager> _feedsManager;
    std::shared_ptr<const Clock> _clock;
};

} // namespace brindle
