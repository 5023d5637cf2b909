#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The folders of the XDG Base Directory Specification, as the environment has them now. Thread: main.
struct XDGFolders {
    std::optional<std::filesystem::path> configHome; ///< absent with no home
    std::optional<std::filesystem::path> dataHome;   ///< absent with no home
    std::vector<std::filesystem::path> configDirectories;
    std::vector<std::filesystem::path> dataDirectories;
    std::vector<std::string> desktops; ///< the names of the present desktop, the most specific first, in lower case

    static XDGFolders fromEnvironment();

    /// The user's folder first.
    std::vector<std::filesystem::path> allConfigDirectories() const;
    std::vector<std::filesystem::path> allDataDirectories() const;
};

} // namespace brindle::desktop
