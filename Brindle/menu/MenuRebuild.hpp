#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/menu/ArticleCounts.hpp"
#include "Brindle/menu/ArticleItemOptions.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Image.hpp"

#include <memory>
#include <unordered_map>

namespace brindle {

/// `image` as large as an item's: 16 by 16 points.
Image menuItemImage(const Image& image);

/// What all items of one rebuild of the menu have in common, looked up and made once for tens of thousands of them. Good for that rebuild
/// only. Thread: main.
class MenuRebuild {
public:
    /// `feeds` is the top level of the library; `applicationDelegate` takes the actions of articles. Without `previews`, previews that are
    /// opened stay empty.
    MenuRebuild(const UserDefaults& defaults, const FeedsManager::Feeds& feeds, std::weak_ptr<ActionHandler> applicationDelegate,
        std::shared_ptr<ArticlePreviewFactory> previews);

    const bool showsUnreadInFeeds;
    const bool showsUnreadInGroups;
    const ArticleItemOptions articleItems;
    const ArticleCounts counts;
    const std::weak_ptr<ActionHandler> applicationDelegate;
    const std::shared_ptr<ArticlePreviewFactory> previews;

    /// The feed's icon, as it was then, else the default one that all feeds share; the default one also for no feed, and for one that was
    /// not in the library.
    const Image& feedImage(const FeedItem* item) const;

private:
    const Image _defaultImage;
    std::unordered_map<const FeedItem*, Image> _images; ///< of the feeds that have one
};

} // namespace brindle
