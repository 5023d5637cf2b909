#pragma once

#include "Brindle/library/ArticleStateFilter.hpp"
#include "Brindle/library/Feed.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"
#include "SyndicatedParser/SyndicatedSession.hpp"
#include "foundation/URL.hpp"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace brindle {

class FeedGroup;
class FeedItem;
class FeedItemArticle;

/// Owns the top level of the tree, reads and writes the library's files, and holds the one switch for updating. Thread: main.
class FeedsManager {
public:
    using Feeds = std::vector<std::shared_ptr<Feed>>;

    /// `supportDirectory` holds the library's files; `delegate` is attached to every feed of the library.
    FeedsManager(
        std::filesystem::path supportDirectory, SyndicatedSessionEnvironment environment, std::weak_ptr<FeedItemDelegate> delegate);

    Feeds feeds; ///< the top level, in the user's order
    /// The global switch; assigning it does nothing until `applyUpdateState` walks.
    bool allowUpdates = true;

    /// Makes the support folder and its folders "Caches", "Images" and "Data" where they are missing; a failure prints a line.
    void createSupportDirectories() const;
    /// Appends what is stored to `feeds` and reads each feed's files.
    void load();
    /// Writes the tree and each feed's files; nothing at all while `feeds` is empty. False when the tree could not be stored, which prints
    /// a line.
    bool save();

    /// Fatal for an index outside 0 to the count at the top level; a group forgives it.
    void addFeed(const std::shared_ptr<Feed>& feed, std::ptrdiff_t index, const std::shared_ptr<FeedGroup>& group = nullptr);
    void removeFeed(const std::shared_ptr<Feed>& feed, const std::shared_ptr<FeedGroup>& group = nullptr);

    /// The item whose session has that URL. Kept as is: the last match wins, and a later group without one empties the result.
    std::shared_ptr<FeedItem> feedItem(const URL& url, const std::shared_ptr<FeedGroup>& group = nullptr) const;
    /// The articles of the whole library, or of `feed` and all below it, in tree order.
    std::vector<std::shared_ptr<FeedItemArticle>> articles(ArticleStateFilter filter, const std::shared_ptr<Feed>& feed = nullptr) const;
    /// Gives the number of articles that changed.
    std::size_t markArticles(ArticleStateFilter state, const std::shared_ptr<Feed>& feed = nullptr);
    /// Every feed of the list and below it, in tree order.
    static std::vector<std::shared_ptr<FeedItem>> items(const Feeds& list);

    void attachDelegates(const Feeds& list);
    void applyUpdateState(const Feeds& list);
    void clearImages(const Feeds& list);
    /// Removes the folders of the feeds' files; what is in memory stays. Kept as is: until the folders are made again, saving leaves those
    /// files out.
    void resetCaches();
    /// Removes the files of one feed.
    void resetCaches(const FeedItem& item);

    const SyndicatedSessionEnvironment& environment() const { return _environment; }
    const std::weak_ptr<FeedItemDelegate>& delegate() const { return _delegate; }
    const std::filesystem::path& supportDirectory() const { return _supportDirectory; }

private:
    void loadLegacyLibrary(const std::filesystem::path& file);
    void loadLibrary();
    bool saveLibrary() const;
    void append(const Feeds& list);

    std::filesystem::path _supportDirectory;
    SyndicatedSessionEnvironment _environment;
    std::weak_ptr<FeedItemDelegate> _delegate;
};

} // namespace brindle
