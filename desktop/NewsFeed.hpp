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
    /// Whether a feed has that address, or that of another place where the program was installed: its library stays when it moves.
    bool isNews(const URL& url) const;
    /// Gives such feeds of the library its document.
    void fill(const FeedsManager& library) const;

private:
    const std::filesystem::path _file;
};

} // namespace brindle::desktop
