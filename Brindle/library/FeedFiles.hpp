#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace brindle {

class AtomicFileBatch;
class FeedItem;

/// What changes all the time of each feed, one file a feed in each of three folders, named by the feed's UUID: its document as fetched
/// ("Data"), the read states of its articles ("Caches"), its icon ("Images"). Nothing here fails: what can't be read or written stays as it
/// was. Thread: main.
class FeedFiles {
public:
    explicit FeedFiles(std::filesystem::path supportDirectory) : _supportDirectory(std::move(supportDirectory)) {}

    /// Makes the support folder and the three in it where they are missing; a failure prints a line.
    void createDirectories() const;
    void load(FeedItem& item) const;
    /// The files of every item, each replaced whole: a document that its file does not have yet, the read states, an icon where one is
    /// held. Documents are in their files then, and no longer in memory.
    void save(const std::vector<std::shared_ptr<FeedItem>>& items) const;
    void remove(const FeedItem& item) const;
    /// Reads the documents back into memory that lie in their files, for these are to be removed.
    void takeBackDocuments(const std::vector<std::shared_ptr<FeedItem>>& items) const;
    /// Removes each of the three folders that has a visible file. Kept as is: nothing makes it again before the next launch, and until then
    /// saving leaves it out.
    void removeAll() const;

private:
    bool addDocument(AtomicFileBatch& batch, const FeedItem& item) const;
    void leaveDocument(FeedItem& item) const;
    std::filesystem::path path(std::string_view folder, const FeedItem& item) const;

    std::filesystem::path _supportDirectory;
};

} // namespace brindle
