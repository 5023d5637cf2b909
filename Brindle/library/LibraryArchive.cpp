#include "Brindle/library/LibraryArchive.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "foundation/KeyedUnarchiver.hpp"

#include <iterator>

namespace brindle {

tl::expected<std::string, PropertyList::Error> LibraryArchive::archivedData(const std::vector<std::shared_ptr<Feed>>& feeds) {
    const auto root = FeedGroup::make("__SAVED_FEED_GROUP__");
    for (const std::shared_ptr<Feed>& feed : feeds)
        root->add(feed, std::ssize(root->feeds()));
    return KeyedArchiver::archivedData(root);
}

tl::expected<std::shared_ptr<FeedGroup>, PropertyList::Error> LibraryArchive::unarchive(
    std::string_view bytes, const SyndicatedSessionEnvironment& environment) {
    KeyedUnarchiver unarchiver;
    unarchiver.setClass("FeedGroup", FeedGroup::decode);
    unarchiver.setClass("FeedItem", [&](const Decoder& decoder) { return FeedItem::decode(decoder, environment); });
    unarchiver.setClass("FeedSeparator", [](const Decoder&) { return FeedSeparator::make(); });
    return unarchiver.unarchive(bytes).map([](const std::shared_ptr<Coding>& root) { return std::dynamic_pointer_cast<FeedGroup>(root); });
}

} // namespace brindle
