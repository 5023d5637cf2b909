#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/opml/FeedsOPMLReader.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// A folder of its own, the console caught, and no network.
class OPMLTest : public ::testing::Test {
protected:
    using Feeds = std::vector<std::shared_ptr<Feed>>;

    OPMLTest();
    ~OPMLTest() override;

    std::shared_ptr<FeedItem> makeItem(const std::string& name, std::string_view url = "http://a.test/feed") const;

    /// Writes a file into the test's folder and gives its path.
    std::filesystem::path write(std::string_view name, std::string_view bytes) const;
    /// A document with this content of the element "body".
    static std::string opml(std::string_view body);

    /// Reads files with a new reader, which is gone before this returns.
    Feeds read(const std::vector<std::filesystem::path>& files);
    Feeds readWith(FeedsOPMLReader& reader, const std::vector<std::filesystem::path>& files);
    /// What comes of one file with this content of "body", as `outline` tells it.
    std::string outlineOf(std::string_view body);

    /// Of the reader that `read` made last.
    std::vector<FeedsOPMLReader::Failure> failures;
    std::vector<std::string> lines; ///< the console's
    const TemporaryFolder folder;
    const SyndicatedSessionEnvironment environment;
};

/// A tree as "Group(Feed Feed) Feed"; an empty name is "?", a separator "-". For trees of modest depth.
std::string outline(const std::vector<std::shared_ptr<Feed>>& feeds);

} // namespace brindle
