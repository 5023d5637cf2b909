#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::testsupport {

/// The folder of test documents that the environment variable BRINDLE_CORPUS names; absent when it is not set or no folder.
std::optional<std::filesystem::path> corpus();

/// Whether a test that cannot find its documents has to fail instead of being skipped: the environment says CI=true.
bool corpusIsMandatory();

/// The regular files below `folder`, in the order of their paths.
std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder);

/// The bytes of a file; fails the running test and gives none when it can't be read.
std::string bytesOf(const std::filesystem::path& file);

/// Leaves a table of what became of the corpus for whoever runs the tests to show: "outcomes/NAME.txt" in the build folder.
void noteOutcomes(const std::string& name, std::string_view table);

} // namespace brindle::testsupport

/// Declares `variable` as the corpus folder, or ends the running test: skipped, or failed under CI=true.
#define BRINDLE_REQUIRE_CORPUS(variable)                                                                                                   \
    const std::optional<std::filesystem::path> variable##Found = brindle::testsupport::corpus();                                           \
    if (!variable##Found && brindle::testsupport::corpusIsMandatory())                                                                     \
        FAIL() << "BRINDLE_CORPUS names no folder";                                                                                        \
    if (!variable##Found)                                                                                                                  \
        GTEST_SKIP() << "BRINDLE_CORPUS names no folder";                                                                                  \
    const std::filesystem::path& variable = *variable##Found
