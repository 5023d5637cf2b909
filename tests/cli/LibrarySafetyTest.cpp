#include "Brindle/library/FeedSeparator.hpp"
#include "foundation/FileLock.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "tests/cli/LibraryFolder.hpp"
#include "tests/support/Corpus.hpp"

#include <fstream>
#include <map>

namespace brindle {

namespace {

using Words = std::vector<std::string>;

constexpr const char* legacyLibrary =
    R"(<plist version="1.0"><array><dict><key>Kind</key><string>feedGroup</string><key>groupName</key><string>Old</string></dict></array></plist>)";

/// Every file of a folder with its bytes.
std::map<std::string, std::string> filesOf(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        files[entry.path().string()] = std::string(std::istreambuf_iterator<char>(file), {});
    }
    return files;
}

} // namespace

/// What may not happen to a stored library.
class LibrarySafetyTest : public LibraryFolderTest {
protected:
    std::filesystem::path libraryFile() const { return supportFolder() / "Feeds.brindle"; }
    std::filesystem::path legacyFile() const { return supportFolder() / "Feeds Library.brindle"; }

    /// A call of each command that writes.
    static std::vector<Words> writers() {
        const std::string uuid(first);
        return {{"add", "http://127.0.0.1:1/"}, {"add-group", "G"}, {"add-separator"}, {"edit", uuid, "--name", "N"}, {"remove", uuid},
            {"update"}, {"mark", "read"}};
    }
};

TEST_F(LibrarySafetyTest, ReadingCommandsNeitherWriteNorNeedTheLock) {
    const auto lock = FileLock::tryLock(supportFolder() / ".lock");
    ASSERT_TRUE(lock && *lock);
    const auto before = filesOf(supportFolder());
    for (const Words& command : std::vector<Words>{{"list"}, {"articles"}, {"search", "a"}})
        EXPECT_EQ(run(command).status, 0) << command[0];
    EXPECT_EQ(filesOf(supportFolder()), before);
}

TEST_F(LibrarySafetyTest, WritingCommandsTouchNothingWhileTheLockIsHeld) {
    const auto lock = FileLock::tryLock(supportFolder() / ".lock");
    ASSERT_TRUE(lock && *lock);
    const auto before = filesOf(supportFolder());
    for (const Words& command : writers())
        expectError(command, 1, "is in use by another program");
    EXPECT_EQ(filesOf(supportFolder()), before);
}

TEST_F(LibrarySafetyTest, ReadsADamagedLibraryAsAnEmptyOneAndSaysSo) {
    std::ofstream(libraryFile()) << "damaged";
    const auto list = run({"--json", "list"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.output, "[]\n");
    EXPECT_TRUE(list.errors.starts_with("Could not unarchive feeds, error: ")) << list.errors;
}

TEST_F(LibrarySafetyTest, ChangesNothingInALibraryThatCannotBeRead) {
    std::ofstream(libraryFile()) << "damaged";
    for (const Words& command : writers())
        expectError(command, 1, "can't be read");
    EXPECT_EQ(testsupport::bytesOf(libraryFile()), "damaged");
}

TEST_F(LibrarySafetyTest, ChangesNothingInALibraryWhoseRootIsNoGroup) {
    const std::string bytes = KeyedArchiver::archivedData(FeedSeparator::make()).value();
    std::ofstream(libraryFile(), std::ios::binary) << bytes;
    for (const Words& command : writers())
        expectError(command, 1, "can't be read: Its root is no group of feeds");
    EXPECT_EQ(testsupport::bytesOf(libraryFile()), bytes);
}

TEST_F(LibrarySafetyTest, FailsForASupportFolderThatIsAFile) {
    const std::string path = file("plain", "text");
    expectError({"--support-dir", path, "list"}, 1, "Not a directory");
    expectError({"--support-dir", path, "add-group", "G"}, 1, path);
}

TEST_F(LibrarySafetyTest, FailsWhereAFolderStandsForTheLibrary) {
    std::filesystem::remove(libraryFile());
    std::filesystem::create_directories(libraryFile() / "in the way");
    expectError({"add-group", "G"}, 1, "Is a directory");
}

TEST_F(LibrarySafetyTest, FailsWhenTheLibraryCannotBeSaved) {
    // Where the file is written before it gets its name.
    std::filesystem::create_directory(supportFolder() / ".Feeds.brindle.tmp");
    const std::string before = testsupport::bytesOf(libraryFile());
    for (const Words& command : std::vector<Words>{{"add-group", "G"}, {"add-separator"}, {"edit", std::string(first), "--name", "N"},
             {"remove", std::string(first)}, {"mark", "read"}})
        expectError(command, 1, "could not be saved");
    EXPECT_EQ(testsupport::bytesOf(libraryFile()), before);
}

TEST_F(LibrarySafetyTest, StoresALibraryOfTheFirstVersionsAtOnce) {
    std::ofstream(legacyFile()) << legacyLibrary;
    EXPECT_EQ(outline(), "Old() ");
    EXPECT_EQ(outline(), "Old() ");
    EXPECT_TRUE(std::filesystem::exists(supportFolder() / "Old Feeds Library.brindle"));
}

TEST_F(LibrarySafetyTest, LeavesALibraryOfTheFirstVersionsWhileTheLockIsHeld) {
    std::ofstream(legacyFile()) << legacyLibrary;
    const auto lock = FileLock::tryLock(supportFolder() / ".lock");
    ASSERT_TRUE(lock && *lock);
    const auto before = filesOf(supportFolder());
    expectError({"list"}, 1, "is in use by another program");
    EXPECT_EQ(filesOf(supportFolder()), before);
}

} // namespace brindle
