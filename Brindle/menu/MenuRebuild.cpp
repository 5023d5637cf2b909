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
      _defaultImage(menuItemImage(Image::defaultFeedIcon())) {}

const Image& MenuRebuild::feedImage(const std::shared_ptr<const FeedItem>& item) {
    if (!item || !item->feedImageData())
        return _defaultImage;
    const auto found = _images.find(item);
    return found != _images.end() ? found->second
                                  : _images.emplace(item, menuItemImage(Image::withData(*item->feedImageData()))).first->second;
}

} // namespace brindle
