#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace brindle::desktop {

/// What the program is asked for by its arguments. Thread: a value.
struct Options {
    bool help = false;
    bool version = false;
    bool background = false;                               ///< shows no window at the start
    bool showsFeedsBrowser = false;                        ///< whatever the preferences say of the start
    std::optional<std::filesystem::path> supportDirectory; ///< absolute; absent: the user's
    std::vector<std::string> addresses;                    ///< of feeds, with the schemes "feed", "http" or "https"
    std::vector<std::filesystem::path> files;              ///< OPML files, absolute
    std::vector<std::string> skipped;                      ///< words that are neither, beside others that are

    /// `words` are the arguments without the program's name; relative paths begin in `folder`. The error is one sentence.
    static tl::expected<Options, std::string> parse(const std::vector<std::string>& words, const std::filesystem::path& folder);
    static std::string_view usage();

    /// Of this instance of the program on the session bus: each support folder has one of its own.
    std::string instanceName() const;
    /// What starts this instance: `program`, and the arguments that have it use the same library.
    std::vector<std::string> command(const std::string& program) const;

    /// Addresses and files as one list of URIs, for another process; `addURI` takes them there, and gives false for what is neither.
    std::vector<std::string> uris() const;
    bool addURI(const std::string& uri);
    /// Takes away the files that don't exist, and gives them.
    std::vector<std::filesystem::path> takeMissingFiles();
};

} // namespace brindle::desktop
