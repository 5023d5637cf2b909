#pragma once

#include "foundation/FileError.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// Files. Reads take whole files; writes go to a temporary name in the same folder, are synced and renamed, so that a file is either the
/// old or the new one, whole. Thread: any.
class FileManager {
public:
    static bool fileExists(const std::filesystem::path& path);
    static tl::expected<std::string, FileError> contents(const std::filesystem::path& path);
    static tl::expected<void, FileError> writeAtomically(const std::filesystem::path& path, std::string_view bytes);
    /// With parents; a folder that is there already is no failure.
    static tl::expected<void, FileError> createDirectory(const std::filesystem::path& path);
    /// Renames; refuses to replace an existing file.
    static tl::expected<void, FileError> moveItem(const std::filesystem::path& from, const std::filesystem::path& to);
    /// A file, or a folder with all that is in it.
    static tl::expected<void, FileError> removeItem(const std::filesystem::path& path);
    /// Entries whose names don't begin with ".", sorted by name, without descending; absent when `path` is no readable folder.
    static std::optional<std::vector<std::filesystem::path>> visibleContents(const std::filesystem::path& path);
    /// The user's folder for program data: $XDG_DATA_HOME, else ~/.local/share (XDG Base Directory Specification); absent with no home.
    static std::optional<std::filesystem::path> applicationSupportDirectory();
};

} // namespace brindle
