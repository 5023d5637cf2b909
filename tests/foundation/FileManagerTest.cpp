#include "foundation/FileManager.hpp"

#include "foundation/FileLock.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brindle {
namespace {

namespace fs = std::filesystem;

TEST(FileManagerTest, ReadsBackWhatItWrote) {
    const TemporaryFolder folder;
    const std::string bytes("a\0b\xFF", 4);
    ASSERT_TRUE(FileManager::writeAtomically(folder / "file", bytes));
    EXPECT_EQ(FileManager::contents(folder / "file").value(), bytes);
    EXPECT_TRUE(FileManager::fileExists(folder / "file"));
}

TEST(FileManagerTest, ReplacesAFileWholeAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::writeAtomically(folder / "file", "a long first text"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "file", "short"));
    EXPECT_EQ(FileManager::contents(folder / "file").value(), "short");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

TEST(FileManagerTest, SaysWhatFailedAndWhere) {
    const TemporaryFolder folder;
    const auto read = FileManager::contents(folder / "missing");
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().code, ENOENT);
    EXPECT_EQ(read.error().message, "Could not read " + (folder / "missing").string() + ": No such file or directory");
    const auto written = FileManager::writeAtomically(folder / "none" / "file", "x");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, ENOENT);
    EXPECT_FALSE(FileManager::contents(folder.path())) << "a folder is no file";
}

TEST(FileManagerTest, LeavesTheOldFileWhereANewOneCannotBeWritten) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::createDirectory(folder / "file"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "file" / "inner", "kept"));
    EXPECT_FALSE(FileManager::writeAtomically(folder / "file", "x"));
    EXPECT_EQ(FileManager::contents(folder / "file" / "inner").value(), "kept");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1) << "no temporary file is left";
}

TEST(FileManagerTest, MakesFoldersWithTheirParentsAndBearsExistingOnes) {
    const TemporaryFolder folder;
    EXPECT_TRUE(FileManager::createDirectory(folder / "a" / "b"));
    EXPECT_TRUE(FileManager::createDirectory(folder / "a" / "b"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "file", "x"));
    EXPECT_FALSE(FileManager::createDirectory(folder / "file"));
}

TEST(FileManagerTest, MovesAFileButNotOntoAnother) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::writeAtomically(folder / "a", "a"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "b", "b"));
    EXPECT_FALSE(FileManager::moveItem(folder / "a", folder / "b"));
    EXPECT_EQ(FileManager::contents(folder / "b").value(), "b");
    EXPECT_TRUE(FileManager::moveItem(folder / "a", folder / "c"));
    EXPECT_FALSE(FileManager::fileExists(folder / "a"));
    EXPECT_EQ(FileManager::contents(folder / "c").value(), "a");
}

TEST(FileManagerTest, RemovesAFolderWithAllThatIsInIt) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::createDirectory(folder / "a" / "b"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "a" / "b" / "c", "x"));
    EXPECT_TRUE(FileManager::removeItem(folder / "a"));
    EXPECT_FALSE(FileManager::fileExists(folder / "a"));
    EXPECT_FALSE(FileManager::removeItem(folder / "a"));
}

TEST(FileManagerTest, ListsVisibleEntriesOnlyAndDoesNotDescend) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::createDirectory(folder / "b" / "inner"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / "a", "x"));
    ASSERT_TRUE(FileManager::writeAtomically(folder / ".hidden", "x"));
    const auto entries = FileManager::visibleContents(folder.path());
    ASSERT_TRUE(entries);
    EXPECT_EQ(*entries, (std::vector<fs::path>{folder / "a", folder / "b"}));
    EXPECT_FALSE(FileManager::visibleContents(folder / "missing"));
}

TEST(FileManagerTest, FindsTheUsersDataFolder) {
    ::setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(FileManager::applicationSupportDirectory(), fs::path("/data"));
    ::setenv("XDG_DATA_HOME", "relative", 1);
    ::setenv("HOME", "/home/someone", 1);
    EXPECT_EQ(FileManager::applicationSupportDirectory(), fs::path("/home/someone/.local/share"));
    ::unsetenv("HOME");
    EXPECT_EQ(FileManager::applicationSupportDirectory(), std::nullopt);
}

TEST(FileLockTest, IsHeldByOneAtATime) {
    const TemporaryFolder folder;
    auto first = FileLock::tryLock(folder / "lock");
    ASSERT_TRUE(first && first->has_value());
    const auto second = FileLock::tryLock(folder / "lock");
    ASSERT_TRUE(second);
    EXPECT_FALSE(second->has_value());
    first->reset();
    const auto third = FileLock::tryLock(folder / "lock");
    EXPECT_TRUE(third && third->has_value());
}

TEST(FileLockTest, SaysWhyItCannotBeMade) {
    const TemporaryFolder folder;
    const auto lock = FileLock::tryLock(folder / "none" / "lock");
    ASSERT_FALSE(lock);
    EXPECT_EQ(lock.error().code, ENOENT);
}

} // namespace
} // namespace brindle
