#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "cli/ArgumentParser.hpp"
#include "cli/CommandResult.hpp"
#include "cli/FeedAnswers.hpp"
#include "cli/Settings.hpp"
#include "foundation/FileLock.hpp"
#include "foundation/UUID.hpp"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// The user's library as a command works on it: opened, locked where the command writes, and waited for. Thread: main.
class Library {
public:
    enum class Purpose { reading, writing };
    enum class Network { none, feeds, feedsAndIcons };

    /// What a command that fetches may look for, by its option `--no-icons`.
    static Network network(const Arguments& arguments);

    /// Loads the library. For writing the folder is made where it is missing and locked until this object ends; a lock that is held by
    /// someone else, and a library file that can't be read, are errors, and nothing is touched.
    static tl::expected<std::unique_ptr<Library>, CommandError> open(const Settings& settings, Purpose purpose, Network network);

    FeedsManager& manager() { return *_manager; }
    const std::shared_ptr<FeedsManager>& sharedManager() const { return _manager; }
    FeedAnswers& answers() { return *_answers; }
    const std::shared_ptr<FeedAnswers>& sharedAnswers() const { return _answers; }

    /// The entry that a command line names: an item by its UUID, any entry by its place from the top ("@2", "@2.0").
    tl::expected<std::shared_ptr<Feed>, CommandError> feed(const std::string& name);
    /// All of the tree where no name is given, else the entry of that name alone.
    tl::expected<FeedsManager::Feeds, CommandError> feeds(const std::optional<std::string>& name);

    /// Reads the stored documents of all items in a list and below it, without touching the network, and waits for that.
    void bringBack(const FeedsManager::Feeds& list);

    tl::expected<void, CommandError> save();

private:
    Library(std::filesystem::path folder, std::optional<FileLock> lock, SyndicatedSessionEnvironment environment);
    /// Fails where the library came out empty because its file can't be read or, for one that writes, is damaged.
    tl::expected<void, CommandError> checkStoredTree(bool writes) const;
    tl::expected<std::shared_ptr<Feed>, CommandError> feedAtPlace(const std::string& name) const;

    const std::filesystem::path _folder;
    const std::optional<FileLock> _lock; ///< goes last
    const std::shared_ptr<FeedAnswers> _answers;
    const std::shared_ptr<FeedsManager> _manager;
    std::map<UUID, std::shared_ptr<FeedItem>> _items; ///< made at the first look-up
};

} // namespace brindle
