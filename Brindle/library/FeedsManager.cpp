#include "Brindle/library/FeedsManager.hpp"

#include "Brindle/library/FeedFiles.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "Brindle/library/LegacyLibrary.hpp"
#include "Brindle/library/LibraryArchive.hpp"
#include "foundation/Console.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view libraryName = "Feeds.brindle";
constexpr std::string_view legacyName = "Feeds Library.brindle";
constexpr std::string_view oldLegacyName = "Old Feeds Library.brindle";

std::shared_ptr<FeedItem> itemOf(const std::shared_ptr<Feed>& feed) {
    return feed->kind == Feed::Kind::item ? std::static_pointer_cast<FeedItem>(feed) : nullptr;
}

} // namespace

FeedsManager::FeedsManager(fs::path supportDirectory, SyndicatedSessionEnvironment environment, std::weak_ptr<FeedItemDelegate> delegate)
    : _supportDirectory(std::move(supportDirectory)), _environment(std::move(environment)), _delegate(std::move(delegate)) {}

void FeedsManager::createSupportDirectories() const {
    FeedFiles(_supportDirectory).createDirectories();
}

void FeedsManager::load() {
    assertMainThread();
    const fs::path legacy = _supportDirectory / legacyName;
    if (FileManager::fileExists(legacy))
        loadLegacyLibrary(legacy);
    else
        loadLibrary();
    attachDelegates(feeds);
    const FeedFiles files(_supportDirectory);
    for (const std::shared_ptr<FeedItem>& item : items(feeds))
        files.load(*item);
}

void FeedsManager::loadLegacyLibrary(const fs::path& file) {
    const auto group = FeedGroup::make("__LEGACY_FEED_GROUP__");
    if (const auto bytes = FileManager::contents(file))
        LegacyLibrary::importInto(*group, *bytes, _environment);
    // Kept as is: a file that can't be moved is imported again at the next launch.
    if (const auto moved = FileManager::moveItem(file, _supportDirectory / oldLegacyName); !moved)
        Console::print("Could not move legacy library, error: " + moved.error().message);
    append(group->feeds());
}

void FeedsManager::loadLibrary() {
    const auto bytes = FileManager::contents(_supportDirectory / libraryName);
    if (!bytes)
        return Console::print("Could not load library, error: " + bytes.error().message);
    const auto root = LibraryArchive::unarchive(*bytes, _environment);
    if (!root)
        return Console::print("Could not unarchive feeds, error: " + root.error().message);
    if (*root)
        append((*root)->feeds());
}

void FeedsManager::append(const Feeds& list) {
    for (const std::shared_ptr<Feed>& feed : list) {
        feeds.push_back(feed);
        if (const auto item = itemOf(feed))
            item->delegate = _delegate;
    }
}

bool FeedsManager::save() {
    assertMainThread();
    // Kept as is: an empty library is not stored, so the feeds of the last save come back at the next launch.
    if (feeds.empty())
        return true;
    const bool isStored = saveLibrary();
    FeedFiles(_supportDirectory).save(items(feeds));
    return isStored;
}

bool FeedsManager::saveLibrary() const {
    const auto bytes = LibraryArchive::archivedData(feeds);
    if (!bytes) {
        Console::print("Could not convert feed group to data, error: " + bytes.error().message);
        return false;
    }
    const auto written = FileManager::writeAtomically(_supportDirectory / libraryName, *bytes);
    if (!written)
        Console::print("Could not write Feeds Library, error: " + written.error().message);
    return written.has_value();
}

void FeedsManager::addFeed(const std::shared_ptr<Feed>& feed, std::ptrdiff_t index, const std::shared_ptr<FeedGroup>& group) {
    assertMainThread();
    if (const auto item = itemOf(feed))
        item->delegate = _delegate;
    if (group)
        return group->add(feed, index);
    if (index < 0 || index > std::ssize(feeds))
        fatalError("A feed's index is outside the library's top level.");
    feeds.insert(feeds.begin() + index, feed);
}

void FeedsManager::removeFeed(const std::shared_ptr<Feed>& feed, const std::shared_ptr<FeedGroup>& group) {
    assertMainThread();
    if (const auto item = itemOf(feed)) {
        item->delegate.reset();
        item->invalidateTimer();
    }
    if (group)
        return group->remove(feed);
    if (const auto place = std::find(feeds.begin(), feeds.end(), feed); place != feeds.end())
        feeds.erase(place);
}

std::shared_ptr<FeedItem> FeedsManager::feedItem(const URL& url, const std::shared_ptr<FeedGroup>& group) const {
    // The last entry that decides the result is the first from behind, and a group decides by what it holds.
    const Feeds* list = group ? &group->feeds() : &feeds;
    for (auto feed = list->rbegin(); feed != list->rend();) {
        if ((*feed)->kind == Feed::Kind::group) {
            list = &static_cast<const FeedGroup&>(**feed).feeds();
            feed = list->rbegin();
            continue;
        }
        if (const auto item = itemOf(*feed); item && item->url() == url)
            return item;
        ++feed;
    }
    return nullptr;
}

std::vector<std::shared_ptr<FeedItemArticle>> FeedsManager::articles(ArticleStateFilter filter, const std::shared_ptr<Feed>& feed) const {
    std::vector<std::shared_ptr<FeedItemArticle>> found;
    forEachFeed(feed ? Feeds{feed} : feeds, [&](const std::shared_ptr<Feed>& entry) {
        const auto item = itemOf(entry);
        if (!item)
            return;
        auto some = item->articlesWithState(filter);
        std::move(some.begin(), some.end(), std::back_inserter(found));
    });
    return found;
}

std::size_t FeedsManager::markArticles(ArticleStateFilter state, const std::shared_ptr<Feed>& feed) {
    if (state == ArticleStateFilter::any)
        return 0;
    const auto others = state == ArticleStateFilter::read ? ArticleStateFilter::unread : ArticleStateFilter::read;
    std::size_t changed = 0;
    for (const std::shared_ptr<FeedItem>& item : items(feed ? Feeds{feed} : feeds)) {
        for (const std::shared_ptr<FeedItemArticle>& article : item->articlesWithState(others)) {
            item->markArticle(*article, state);
            ++changed;
        }
    }
    return changed;
}

std::vector<std::shared_ptr<FeedItem>> FeedsManager::items(const Feeds& list) {
    std::vector<std::shared_ptr<FeedItem>> found;
    forEachFeed(list, [&](const std::shared_ptr<Feed>& feed) {
        if (auto item = itemOf(feed))
            found.push_back(std::move(item));
    });
    return found;
}

void FeedsManager::attachDelegates(const Feeds& list) {
    for (const std::shared_ptr<FeedItem>& item : items(list))
        item->delegate = _delegate;
}

void FeedsManager::applyUpdateState(const Feeds& list) {
    assertMainThread();
    for (const std::shared_ptr<FeedItem>& item : items(list)) {
        if (allowUpdates)
            item->scheduleUpdates(true);
        else
            item->invalidateTimer();
    }
}

void FeedsManager::clearImages(const Feeds& list) {
    for (const std::shared_ptr<FeedItem>& item : items(list))
        item->setFeedImageData(std::nullopt);
}

void FeedsManager::resetCaches() {
    const FeedFiles files(_supportDirectory);
    files.takeBackDocuments(items(feeds));
    files.removeAll();
}

void FeedsManager::resetCaches(const FeedItem& item) {
    FeedFiles(_supportDirectory).remove(item);
}

} // namespace brindle
