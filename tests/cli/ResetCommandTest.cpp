#include "tests/cli/LibraryFolder.hpp"

#include <fstream>

namespace brindle {
namespace {

class ResetCommandTest : public LibraryFolderTest {
protected:
    std::filesystem::path icon() const { return supportFolder() / "Images" / first; }
    void storeIcon() const { std::ofstream(icon()) << "icon"; }
};

TEST_F(ResetCommandTest, RemovesTheFilesOfAllFeedsAndKeepsTheFeeds) {
    storeIcon();
    EXPECT_EQ(run({"reset", "caches"}).status, 0);
    for (const char* folder : {"Data", "Caches", "Images"})
        EXPECT_FALSE(std::filesystem::exists(supportFolder() / folder / first)) << folder;
    EXPECT_EQ(outline(), "One News( - ) - ");
    EXPECT_EQ(runJSON({"articles"}).size(), 0U);
}

TEST_F(ResetCommandTest, LeavesTheStoredIconsForTheNextStart) {
    storeIcon();
    const CommandLineRun result = run({"reset", "icons"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages().size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(icon()));
    EXPECT_EQ(runJSON({"articles"}).size(), 3U);
}

TEST_F(ResetCommandTest, RefusesAnythingElse) {
    expectError({"reset", "all"}, 2, "'all' is neither icons nor caches");
    expectError({"reset"}, 2, "");
}

} // namespace
} // namespace brindle
