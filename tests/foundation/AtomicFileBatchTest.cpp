#include "foundation/AtomicFileBatch.hpp"

#include "foundation/FileManager.hpp"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace brindle {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class AtomicFileBatchTest : public ::testing::Test {
protected:
    AtomicFileBatchTest() {
        std::string name = (fs::temp_directory_path() / "brindle-batch-XXXXXX").string();
        folder = ::mkdtemp(name.data());
        fs::create_directory(folder / "a");
        fs::create_directory(folder / "b");
    }
    ~AtomicFileBatchTest() override { fs::remove_all(folder); }

    std::string file(const std::string& name) const { return FileManager::contents(folder / name).value_or("no file"); }
    static std::size_t count(const fs::path& path) {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(path), fs::directory_iterator()));
    }

    fs::path folder;
};

TEST_F(AtomicFileBatchTest, ReplacesFilesOfSeveralFoldersAtTheCommit) {
    ASSERT_TRUE(FileManager::writeAtomically(folder / "a/1", "old"));
    AtomicFileBatch batch;
    EXPECT_TRUE(batch.add(folder / "a/1", "new"));
    EXPECT_TRUE(batch.add(folder / "a/2", std::string("\0bytes", 6)));
    EXPECT_TRUE(batch.add(folder / "b/1", ""));
    EXPECT_EQ(file("a/1"), "old");
    EXPECT_EQ(file("a/2"), "no file");
    EXPECT_THAT(batch.commit(), IsEmpty());
    EXPECT_EQ(file("a/1"), "new");
    EXPECT_EQ(file("a/2"), std::string("\0bytes", 6));
    EXPECT_EQ(file("b/1"), "");
    EXPECT_EQ(count(folder / "a"), 2U);
}

TEST_F(AtomicFileBatchTest, KeepsTemporaryFilesInTheirFoldersUnderHiddenNames) {
    AtomicFileBatch batch;
    ASSERT_TRUE(batch.add(folder / "a/1", "new"));
    ASSERT_EQ(count(folder / "a"), 1U);
    const std::string name = fs::directory_iterator(folder / "a")->path().filename();
    EXPECT_TRUE(name.starts_with('.') && name.ends_with(".tmp")) << name;
}

TEST_F(AtomicFileBatchTest, TakesTheLaterBytesOfAPathThatIsAddedTwice) {
    AtomicFileBatch batch;
    EXPECT_TRUE(batch.add(folder / "a/1", "a longer text"));
    EXPECT_TRUE(batch.add(folder / "a/1", "later"));
    EXPECT_THAT(batch.commit(), IsEmpty());
    EXPECT_EQ(file("a/1"), "later");
}

TEST_F(AtomicFileBatchTest, LeavesNothingBehindWithoutACommit) {
    { EXPECT_TRUE(AtomicFileBatch().add(folder / "a/1", "new")); }
    EXPECT_EQ(count(folder / "a"), 0U);
}

TEST_F(AtomicFileBatchTest, CanBeUsedAgainAfterACommit) {
    AtomicFileBatch batch;
    EXPECT_THAT(batch.commit(), IsEmpty());
    ASSERT_TRUE(batch.add(folder / "a/1", "1"));
    EXPECT_THAT(batch.commit(), IsEmpty());
    ASSERT_TRUE(batch.add(folder / "a/1", "2"));
    EXPECT_THAT(batch.commit(), IsEmpty());
    EXPECT_EQ(file("a/1"), "2");
}

TEST_F(AtomicFileBatchTest, GoesOnWithTheOtherFilesAfterAFailure) {
    fs::create_directory(folder / "a/2");
    AtomicFileBatch batch;
    EXPECT_TRUE(batch.add(folder / "a/1", "1"));
    EXPECT_TRUE(batch.add(folder / "a/2", "in the way is a folder"));
    EXPECT_TRUE(batch.add(folder / "a/3", "3"));
    const auto missing = batch.add(folder / "missing/4", "4");
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().code, ENOENT);
    const auto tooLong = batch.add(folder / "a" / std::string(300, 'x'), "5");
    ASSERT_FALSE(tooLong);
    EXPECT_EQ(tooLong.error().code, ENAMETOOLONG);
    const auto errors = batch.commit();
    ASSERT_THAT(errors, SizeIs(1));
    EXPECT_EQ(errors[0].code, EISDIR);
    EXPECT_NE(errors[0].message.find((folder / "a/2").string()), std::string::npos) << errors[0].message;
    EXPECT_EQ(file("a/1"), "1");
    EXPECT_EQ(file("a/3"), "3");
    EXPECT_EQ(count(folder / "a"), 3U);
}

TEST_F(AtomicFileBatchTest, RemovesWhatACrashedBatchLeftAndNothingElse) {
    {
        AtomicFileBatch crashed;
        ASSERT_TRUE(crashed.add(folder / "a/gone", "left"));
        fs::rename(fs::directory_iterator(folder / "a")->path(), folder / "kept");
    }
    fs::rename(folder / "kept", folder / "a" / ".gone.batch.tmp");
    ASSERT_TRUE(FileManager::writeAtomically(folder / "a/.other.tmp", "of another writer"));
    AtomicFileBatch batch;
    ASSERT_TRUE(batch.add(folder / "a/1", "1"));
    EXPECT_THAT(batch.commit(), IsEmpty());
    EXPECT_FALSE(fs::exists(folder / "a" / ".gone.batch.tmp"));
    EXPECT_TRUE(fs::exists(folder / "a" / ".other.tmp"));
    EXPECT_EQ(count(folder / "a"), 2U);
}

TEST_F(AtomicFileBatchTest, DoesNotWriteThroughALinkThatBearsATemporaryName) {
    ASSERT_TRUE(FileManager::writeAtomically(folder / "outside", "untouched"));
    AtomicFileBatch batch;
    ASSERT_TRUE(batch.add(folder / "a/1", "1"));
    fs::create_symlink(folder / "outside", folder / "a/.2.batch.tmp");
    EXPECT_FALSE(batch.add(folder / "a/2", "2"));
    EXPECT_EQ(file("outside"), "untouched");
}

TEST_F(AtomicFileBatchTest, MakesFilesThatOthersMayReadLikeAnyOther) {
    AtomicFileBatch batch;
    ASSERT_TRUE(batch.add(folder / "a/1", "1"));
    ASSERT_THAT(batch.commit(), IsEmpty());
    EXPECT_NE(fs::status(folder / "a/1").permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(fs::status(folder / "a/1").permissions() & fs::perms::owner_exec, fs::perms::none);
}

} // namespace
} // namespace brindle
