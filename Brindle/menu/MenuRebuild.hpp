#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/menu/ArticleCounts.hpp"
#include "Brindle/menu/ArticleItemOptions.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Image.hpp"

#include <map>
#include <memory>

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

    /// The feed's icon, one image for all who ask, else the default one that all feeds share; the default one also for null. Valid for as
    /// long as this object.
    const Image& feedImage(const std::shared_ptr<const FeedItem>& item);

private:
    const Image _defaultImage;
    std::map<std::weak_ptr<const FeedItem>, Image, std::owner_less<>> _images; ///< of the feeds that were asked for and have one
};

} // namespace brindle
