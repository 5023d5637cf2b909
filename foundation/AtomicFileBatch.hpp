#pragma once

#include "foundation/FileError.hpp"

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// Writes many files that are each replaced whole, for the price of one sync: every file goes to a temporary name in its own folder, one
/// sync makes them all last, then each is renamed. A crash at any moment leaves each file either old or new. What a crashed batch left
/// behind is removed by the next batch on the same folder, so one folder takes one batch at a time. Thread: one at a time.
class AtomicFileBatch {
public:
    AtomicFileBatch();
    /// Removes what was added and not committed.
    ~AtomicFileBatch();
    AtomicFileBatch(const AtomicFileBatch&) = delete;
    AtomicFileBatch& operator=(const AtomicFileBatch&) = delete;

    /// Takes `bytes` for the file at `path`, whose folder must exist. A path that is added again gets the later bytes. A failure leaves the
    /// other files of the batch alone.
    tl::expected<void, FileError> add(const std::filesystem::path& path, std::string_view bytes);

    /// Replaces every file that was added, and gives the failures. The batch is empty afterwards.
    std::vector<FileError> commit();

private:
    class Folder;

    tl::expected<Folder*, FileError> folder(const std::filesystem::path& path);

    std::map<std::string, std::unique_ptr<Folder>> _folders; ///< by path
};

} // namespace brindle
