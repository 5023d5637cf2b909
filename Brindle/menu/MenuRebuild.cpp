#include "Brindle/menu/MenuRebuild.hpp"

#include "Brindle/library/PreferenceKeys.hpp"

#include <utility>

namespace brindle {

Image menuItemImage(const Image& image) {
    return image.resized({16, 16});
}

MenuRebuild::MenuRebuild(const UserDefaults& defaults, const FeedsManager::Feeds& feeds, std::weak_ptr<ActionHandler> delegate,
    std::shared_ptr<ArticlePreviewFactory> previewFactory)
    : showsUnreadInFeeds(defaults.boolForKey(preference::showUnreadArticlesInFeeds)),
      showsUnreadInGroups(defaults.boolForKey(preference::showUnreadArticlesInGroups)), articleItems(ArticleItemOptions::read(defaults)),
      counts(feeds), applicationDelegate(std::move(delegate)), previews(std::move(previewFactory)),
      _defaultImage(menuItemImage(Image::defaultFeedIcon())) {
    for (const std::shared_ptr<FeedItem>& item : FeedsManager::items(feeds)) {
        if (const auto& data = item->feedImageData())
            _images.emplace(item.get(), menuItemImage(Image::withData(*data)));
    }
}

const Image& MenuRebuild::feedImage(const FeedItem* item) const {
    const auto found = _images.find(item);
    return found == _images.end() ? _defaultImage : found->second;
}

} // namespace brindle
