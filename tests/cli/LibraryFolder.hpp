#pragma once

#include "tests/cli/CommandLineRun.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace brindle {

/// An RSS document with an article for each title, linked to "http://a.test/" and the title.
std::string rssDocument(std::string_view feedTitle, const std::vector<std::string>& titles);

/// Calls the program on a stored library of this tree:
///
///     @0    One, 20 minutes, articles "Alpha" and "Béta"
///     @1    News/
///     @1.0  a feed without a name, its title is "Second", article "Gamma"
///     @1.1  a separator
///     @2    a separator
class LibraryFolderTest : public CommandLineTest {
protected:
    static constexpr std::string_view first = "00000000-0000-0000-0000-000000000001";
    static constexpr std::string_view second = "00000000-0000-0000-0000-00000000000A";

    void SetUp() override;

    /// What of the tree is told as "name(children)".
    std::string outline();
    /// The titles of the articles that a command prints.
    std::vector<std::string> titles(const std::vector<std::string>& command);
};

} // namespace brindle
