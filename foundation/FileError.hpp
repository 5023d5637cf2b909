#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brindle {

/// A file operation that failed.
struct FileError {
    int code = 0;        ///< errno
    std::string message; ///< one sentence with the path and what the system said

    /// The failure that errno tells of: "Could not open /a/b: No such file or directory".
    static FileError last(std::string_view operation, const std::filesystem::path& path);
    static FileError of(int code, std::string_view operation, const std::filesystem::path& path);
};

} // namespace brindle
