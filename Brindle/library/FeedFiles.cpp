#include "Brindle/library/FeedFiles.hpp"

#include "Brindle/library/ArticleStateCacheCoding.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "foundation/AtomicFileBatch.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"

#include <optional>
#include <string>
#include <utility>

namespace brindle {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view dataFolder = "Data";
constexpr std::string_view cachesFolder = "Caches";
constexpr std::string_view imagesFolder = "Images";

void createDirectory(const fs::path& path) {
    if (FileManager::fileExists(path))
        return;
    const auto made = FileManager::createDirectory(path);
    if (made)
        return;
    const fs::path name = path.has_filename() ? path.filename() : path.parent_path().filename();
    Console::print("Could not create directory " + name.string() + ", error: " + made.error().message);
}

} // namespace

void FeedFiles::createDirectories() const {
    createDirectory(_supportDirectory);
    for (const std::string_view folder : {cachesFolder, imagesFolder, dataFolder})
        createDirectory(_supportDirectory / folder);
}

void FeedFiles::load(FeedItem& item) const {
    if (const ColdBytes document = ColdBytes::ofFile(path(dataFolder, item)); !document.empty()) {
        item.data = document;
        item.storedData = document;
    }
    if (const auto bytes = FileManager::contents(path(cachesFolder, item))) {
        if (auto states = decodeArticleStates(*bytes))
            item.articleStateCache = *std::move(states);
    }
    if (const auto file = path(imagesFolder, item); FileManager::fileExists(file)) {
        auto image = FileManager::contents(file);
        item.setFeedImageData(image ? std::optional(*std::move(image)) : std::nullopt);
    }
}

void FeedFiles::save(const std::vector<std::shared_ptr<FeedItem>>& items) const {
    AtomicFileBatch batch;
    bool areStored = true;
    for (const std::shared_ptr<FeedItem>& item : items) {
        areStored = addDocument(batch, *item) && areStored;
        batch.add(path(cachesFolder, *item), encodeArticleStates(item->articleStateCache));
        if (const auto& image = item->feedImageData())
            batch.add(path(imagesFolder, *item), *image);
    }
    // Only what surely lies in its file may leave the memory.
    if (!batch.commit().empty() || !areStored)
        return;
    for (const std::shared_ptr<FeedItem>& item : items)
        leaveDocument(*item);
}

/// A document that still lies in its file is not written again.
bool FeedFiles::addDocument(AtomicFileBatch& batch, const FeedItem& item) const {
    const fs::path file = path(dataFolder, item);
    if (item.data.file() == file)
        return true;
    // Older articles that somebody keeps have their texts there.
    if (item.storedData.isShared())
        item.storedData.takeBack();
    return batch.add(file, item.data.bytes()).has_value();
}

void FeedFiles::leaveDocument(FeedItem& item) const {
    item.data.leaveIn(path(dataFolder, item));
    item.storedData = item.data;
}

void FeedFiles::takeBackDocuments(const std::vector<std::shared_ptr<FeedItem>>& items) const {
    for (const std::shared_ptr<FeedItem>& item : items) {
        item->data.takeBack();
        item->storedData.takeBack();
    }
}

void FeedFiles::remove(const FeedItem& item) const {
    for (const std::string_view folder : {dataFolder, cachesFolder, imagesFolder})
        FileManager::removeItem(path(folder, item));
}

void FeedFiles::removeAll() const {
    for (const std::string_view folder : {dataFolder, cachesFolder, imagesFolder}) {
        const auto contents = FileManager::visibleContents(_supportDirectory / folder);
        if (contents && !contents->empty())
            FileManager::removeItem(_supportDirectory / folder);
    }
}

fs::path FeedFiles::path(std::string_view folder, const FeedItem& item) const {
    return _supportDirectory / folder / item.uuid.uuidString();
}

} // namespace brindle
