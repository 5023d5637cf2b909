#pragma once

#include "foundation/FileError.hpp"

#include <filesystem>
#include <optional>
#include <tl/expected.hpp>

namespace brindle {

/// An exclusive lock on a folder between processes, held by a file in it until this object, or the process, ends. Thread: any; a movable
/// value.
class FileLock {
public:
    /// Absent when another process (or another lock of this one) holds it; an error when the file can't be made. Never waits.
    static tl::expected<std::optional<FileLock>, FileError> tryLock(const std::filesystem::path& file);

    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    ~FileLock();

private:
    explicit FileLock(int descriptor) : _descriptor(descriptor) {}

    int _descriptor = -1;
};

} // namespace brindle
