#pragma once

#include "Brindle/library/FeedsManager.hpp"

#include <filesystem>
#include <string>

namespace brindle::desktop {

/// The program's own news, release notes that come with it as the document of a feed. No network has them: the document takes the place of
/// what the last fetch would have left. Thread: main.
class NewsFeed {
public:
    /// `resources` is the folder of the program's resources.
    explicit NewsFeed(const std::filesystem::path& resources) : _file(resources / "news.xml") {}

    /// As URI of a file.
    std::string address() const;
    /// Gives the feed of that address its document, where the library has it.
    void fill(const FeedsManager& library) const;

private:
    const std::filesystem::path _file;
};

} // namespace brindle::desktop
