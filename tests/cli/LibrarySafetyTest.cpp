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
    std::vector<Words> writers() {
        const std::string uuid(first);
        return {{"add", "http://127.0.0.1:1/"}, {"add-group", "G"}, {"add-separator"}, {"edit", uuid, "--name", "N"}, {"remove", uuid},
            {"update"}, {"mark", "read"}, keep(), {"unkeep", "--id", "http://a.test/A"}, {"import", opmlFile()},
            {"move", uuid, "--to", "top", "--index", "-1"}, {"open", "http://127.0.0.1:1/"}, {"reset", "caches"}};
    }
    static Words keep(const std::string& key = "Alpha&http://a.test/A") { return {"keep", "--feed", std::string(first), "--key", key}; }
    std::string opmlFile() { return file("a.opml", "<opml><body><outline text='A' xmlUrl='http://b.test/'/></body></opml>"); }
};

TEST_F(LibrarySafetyTest, ReadingCommandsNeitherWriteNorNeedTheLock) {
    const auto lock = FileLock::tryLock(supportFolder() / ".lock");
    ASSERT_TRUE(lock && *lock);
    const auto before = filesOf(supportFolder());
    const std::vector<Words> readers = {{"list"}, {"articles"}, {"search", "a"}, {"menu"}, {"status"}, {"collections"}, {"saved"},
        {"export", "-"}, {"outline"}, {"article", "--feed", std::string(first), "--key", "Alpha&http://a.test/A"},
        {"open-unread", "--dry-run"}};
    for (const Words& command : readers)
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
             {"remove", std::string(first)}, {"mark", "read"}, {"import", opmlFile()}, {"move", "@0", "--to", "top", "--index", "-1"}})
        expectError(command, 1, "could not be saved");
    EXPECT_EQ(testsupport::bytesOf(libraryFile()), before);
}

TEST_F(LibrarySafetyTest, FailsWhenTheSavedArticlesCannotBeStored) {
    const std::filesystem::path savedFile = supportFolder() / "Saved Articles.brindle";
    EXPECT_EQ(run(keep()).status, 0);
    EXPECT_EQ(run(keep("B\u00e9ta&http://a.test/B")).status, 0);
    const std::string before = testsupport::bytesOf(savedFile);
    std::filesystem::create_directory(supportFolder() / ".Saved Articles.brindle.tmp");
    expectError({"keep", "--feed", std::string(second), "--key", "Gamma&http://a.test/G"}, 1, "could not be stored");
    expectError({"unkeep", "--id", "http://a.test/A"}, 1, "could not be stored");
    EXPECT_EQ(testsupport::bytesOf(savedFile), before);
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
