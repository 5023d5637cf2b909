#include "foundation/UserDefaults.hpp"

#include "foundation/FileLock.hpp"
#include "foundation/FileManager.hpp"
#include "tests/support/Folders.hpp"
#include "tests/support/MainLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <limits>
#include <sys/wait.h>
#include <unistd.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Data = PropertyList::Data;

class UserDefaultsTest : public ::testing::Test {
protected:
    const TemporaryFolder folder;
    const std::filesystem::path file = folder / "sub/Preferences.plist";
    UserDefaults defaults{file};

    /// A store as another process has it.
    UserDefaults other() const { return UserDefaults(file); }
    std::string bytes() const { return FileManager::contents(file).value_or(std::string()); }
    void write(std::string_view text) const {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    /// Writes the XML form with these contents of the root's dictionary.
    void writeDictionary(const std::string& pairs) const { write("<plist version=\"1.0\"><dict>" + pairs + "</dict></plist>"); }
    /// Puts a folder where the file should be, so that no write succeeds, whoever the user is.
    void blockWrites() const { std::filesystem::create_directories(file / "in the way"); }
    void unblockWrites() const { std::filesystem::remove_all(file); }
    static void runLoop() {
        while (RunLoop::main().runPending()) {
        }
    }
};

TEST_F(UserDefaultsTest, GivesFalseZeroAndNothingForAnUnknownKey) {
    EXPECT_FALSE(defaults.boolForKey("k"));
    EXPECT_EQ(defaults.integerForKey("k"), 0);
    EXPECT_EQ(defaults.doubleForKey("k"), 0.0);
    EXPECT_EQ(defaults.stringForKey("k"), std::nullopt);
    EXPECT_EQ(defaults.dataForKey("k"), std::nullopt);
    EXPECT_EQ(defaults.object("k"), std::nullopt);
    EXPECT_TRUE(defaults.isDefault("k"));
    EXPECT_FALSE(FileManager::fileExists(file.parent_path()));
}

TEST_F(UserDefaultsTest, KeepsValuesOfEachTypeInItsFile) {
    defaults.set("bool", true);
    defaults.set("integer", std::numeric_limits<std::int64_t>::min());
    defaults.set("real", 0.1);
    defaults.set("text", "T\u00e4xt \U0001F600");
    defaults.set("data", Data{std::string("\0\xFF", 2)});
    const UserDefaults copy = other();
    EXPECT_TRUE(copy.boolForKey("bool"));
    EXPECT_EQ(copy.integerForKey("integer"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(copy.doubleForKey("real"), 0.1);
    EXPECT_EQ(copy.stringForKey("text"), "T\u00e4xt \U0001F600");
    EXPECT_EQ(copy.dataForKey("data"), std::string("\0\xFF", 2));
    EXPECT_EQ(copy.object("bool"), UserDefaults::Value(true));
    EXPECT_EQ(copy.object("integer"), UserDefaults::Value(std::numeric_limits<std::int64_t>::min()));
    EXPECT_TRUE(bytes().starts_with("bplist00"));
}

TEST_F(UserDefaultsTest, NumbersAndBooleansStandForEachOther) {
    defaults.registerDefaults({{"yes", true}, {"no", false}, {"two", std::int64_t(2)}, {"zero", std::int64_t(0)}, {"half", 0.5},
        {"minus", -2.75}, {"nothing", 0.0}, {"huge", 1e30}, {"none", std::numeric_limits<double>::quiet_NaN()}});
    EXPECT_EQ(defaults.integerForKey("yes"), 1);
    EXPECT_EQ(defaults.doubleForKey("yes"), 1.0);
    EXPECT_EQ(defaults.integerForKey("no"), 0);
    EXPECT_TRUE(defaults.boolForKey("two"));
    EXPECT_EQ(defaults.doubleForKey("two"), 2.0);
    EXPECT_FALSE(defaults.boolForKey("zero"));
    EXPECT_TRUE(defaults.boolForKey("half"));
    EXPECT_EQ(defaults.integerForKey("half"), 0);
    EXPECT_EQ(defaults.integerForKey("minus"), -2);
    EXPECT_FALSE(defaults.boolForKey("nothing"));
    EXPECT_EQ(defaults.integerForKey("huge"), 0);
    EXPECT_EQ(defaults.integerForKey("none"), 0);
}

TEST_F(UserDefaultsTest, GivesFalseZeroAndNothingForAValueOfAnotherType) {
    defaults.registerDefaults({{"text", "1"}, {"data", Data{"1"}}, {"number", std::int64_t(1)}});
    for (const char* key : {"text", "data"}) {
        EXPECT_FALSE(defaults.boolForKey(key));
        EXPECT_EQ(defaults.integerForKey(key), 0);
        EXPECT_EQ(defaults.doubleForKey(key), 0.0);
    }
    EXPECT_EQ(defaults.stringForKey("data"), std::nullopt);
    EXPECT_EQ(defaults.stringForKey("number"), std::nullopt);
    EXPECT_EQ(defaults.dataForKey("text"), std::nullopt);
}

TEST_F(UserDefaultsTest, NeverWritesRegisteredDefaults) {
    defaults.registerDefaults({{"k", true}});
    EXPECT_TRUE(defaults.boolForKey("k"));
    EXPECT_TRUE(defaults.isDefault("k"));
    defaults.set("l", true);
    EXPECT_FALSE(other().boolForKey("k"));
}

TEST_F(UserDefaultsTest, TheLastRegistrationOfAKeyCounts) {
    defaults.registerDefaults({{"k", std::int64_t(1)}, {"l", std::int64_t(1)}, {"k", std::int64_t(2)}});
    EXPECT_EQ(defaults.integerForKey("k"), 2);
    defaults.registerDefaults({{"k", std::int64_t(3)}});
    EXPECT_EQ(defaults.integerForKey("k"), 3);
    EXPECT_EQ(defaults.integerForKey("l"), 1);
}

TEST_F(UserDefaultsTest, AStoredValueHidesTheDefaultUntilItIsRemoved) {
    defaults.registerDefaults({{"k", true}});
    defaults.set("k", false);
    EXPECT_FALSE(defaults.boolForKey("k"));
    EXPECT_FALSE(defaults.isDefault("k"));
    defaults.removeObject("k");
    EXPECT_TRUE(defaults.boolForKey("k"));
    EXPECT_TRUE(defaults.isDefault("k"));
    EXPECT_TRUE(other().isDefault("k"));
}

TEST_F(UserDefaultsTest, AStoredValueOfAnotherTypeHidesTheDefaultToo) {
    defaults.registerDefaults({{"text", true}, {"list", true}});
    writeDictionary("<key>text</key><string>true</string><key>list</key><array/>");
    EXPECT_FALSE(defaults.boolForKey("text"));
    EXPECT_FALSE(defaults.boolForKey("list"));
    EXPECT_FALSE(defaults.isDefault("list"));
    EXPECT_EQ(defaults.object("list"), std::nullopt);
}

TEST_F(UserDefaultsTest, AValueThatEqualsItsDefaultIsStoredAllTheSame) {
    defaults.registerDefaults({{"k", true}});
    defaults.set("k", true);
    EXPECT_FALSE(defaults.isDefault("k"));
    EXPECT_TRUE(other().boolForKey("k"));
}

TEST_F(UserDefaultsTest, SeesTheChangeOfAnotherProcessAtTheNextRead) {
    EXPECT_EQ(defaults.integerForKey("k"), 0);
    other().set("k", std::int64_t(1));
    EXPECT_EQ(defaults.integerForKey("k"), 1);
    other().set("k", std::int64_t(2));
    EXPECT_EQ(defaults.integerForKey("k"), 2);
    std::filesystem::remove(file);
    EXPECT_EQ(defaults.integerForKey("k"), 0);
}

TEST_F(UserDefaultsTest, ASnapshotReadsTheFileOnce) {
    other().set("k", std::int64_t(1));
    {
        const UserDefaults::Snapshot outer(defaults);
        other().set("k", std::int64_t(2));
        EXPECT_EQ(defaults.integerForKey("k"), 1);
        { const UserDefaults::Snapshot inner(defaults); }
        EXPECT_EQ(defaults.integerForKey("k"), 1);
    }
    EXPECT_EQ(defaults.integerForKey("k"), 2);
}

TEST_F(UserDefaultsTest, ASnapshotShowsWhatThisProcessSets) {
    const UserDefaults::Snapshot snapshot(defaults);
    defaults.set("k", std::int64_t(3));
    EXPECT_EQ(defaults.integerForKey("k"), 3);
}

TEST_F(UserDefaultsTest, AWriteKeepsWhatAnotherProcessWroteMeanwhile) {
    defaults.set("a", std::int64_t(1));
    const UserDefaults::Snapshot snapshot(defaults);
    UserDefaults second = other();
    second.set("b", std::int64_t(2));
    second.removeObject("a");
    defaults.set("c", std::int64_t(3));
    const UserDefaults copy = other();
    EXPECT_TRUE(copy.isDefault("a"));
    EXPECT_EQ(copy.integerForKey("b"), 2);
    EXPECT_EQ(copy.integerForKey("c"), 3);
}

TEST_F(UserDefaultsTest, NoWriteOfManyProcessesIsLost) {
    constexpr int processes = 4;
    constexpr int writes = 10;
    for (int process = 0; process < processes; ++process) {
        if (::fork() != 0)
            continue;
        UserDefaults own(file);
        for (int i = 0; i < writes; ++i)
            own.set(std::to_string(process) + "." + std::to_string(i), true);
        ::_exit(own.synchronize() ? 0 : 1);
    }
    for (int process = 0; process < processes; ++process) {
        int status = 0;
        ASSERT_GT(::wait(&status), 0);
        EXPECT_EQ(status, 0);
    }
    for (int process = 0; process < processes; ++process) {
        for (int i = 0; i < writes; ++i)
            EXPECT_TRUE(defaults.boolForKey(std::to_string(process) + "." + std::to_string(i))) << process << ' ' << i;
    }
}

TEST_F(UserDefaultsTest, AWriteKeepsValuesOfKindsThatAStoreDoesNotHave) {
    writeDictionary("<key>frames</key><array><string>a</string><dict><key>x</key><integer>1</integer></dict></array>"
                    "<key>when</key><date>2020-01-01T00:00:00Z</date>");
    defaults.set("k", true);
    const PropertyList list = PropertyList::read(bytes()).value();
    const auto* frames = list.get<PropertyList::Array>(list.value(list.root, "frames").value());
    ASSERT_TRUE(frames);
    ASSERT_EQ(frames->size(), 2U);
    EXPECT_EQ(*list.get<std::string>((*frames)[0]), "a");
    EXPECT_EQ(list.integer(list.value((*frames)[1], "x").value()), 1);
    EXPECT_TRUE(list.get<Date>(list.value(list.root, "when").value()));
    EXPECT_TRUE(defaults.boolForKey("k"));
}

TEST_F(UserDefaultsTest, ValuesThatAreReplacedOrRemovedLeaveNothingInTheFile) {
    defaults.set("k", "x");
    const std::string before = bytes();
    defaults.set("k", std::string(10'000, 'y'));
    defaults.set("other", "z");
    defaults.removeObject("other");
    defaults.set("k", "x");
    EXPECT_EQ(bytes(), before);
}

TEST_F(UserDefaultsTest, AKeyWithTheValueOfAnotherChangesAlone) {
    defaults.set("a", "same");
    defaults.set("b", "same");
    defaults.set("a", "new");
    EXPECT_EQ(other().stringForKey("b"), "same");
    EXPECT_EQ(other().stringForKey("a"), "new");
}

TEST_F(UserDefaultsTest, ADamagedFileCountsAsEmptyAndIsReplaced) {
    for (const std::string_view text : {"", "bplist00 damaged", "no property list", "<plist version=\"1.0\"><array/></plist>"}) {
        write(text);
        EXPECT_EQ(defaults.integerForKey("k"), 0);
        defaults.set("k", std::int64_t(5));
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(other().integerForKey("k"), 5);
    }
}

TEST_F(UserDefaultsTest, AFailedWriteKeepsTheValueInMemoryAndIsTold) {
    blockWrites();
    defaults.registerDefaults({{"k", std::int64_t(1)}});
    defaults.set("k", std::int64_t(2));
    EXPECT_EQ(defaults.integerForKey("k"), 2);
    EXPECT_FALSE(defaults.isDefault("k"));
    const auto stored = defaults.synchronize();
    ASSERT_FALSE(stored);
    EXPECT_NE(stored.error().message.find(file.string()), std::string::npos) << stored.error().message;
    defaults.removeObject("k");
    EXPECT_EQ(defaults.integerForKey("k"), 1);
    EXPECT_TRUE(defaults.isDefault("k"));
}

TEST_F(UserDefaultsTest, WritesWhatFailedWithTheNextWrite) {
    blockWrites();
    defaults.set("k", std::int64_t(2));
    unblockWrites();
    defaults.set("l", std::int64_t(3));
    EXPECT_EQ(other().integerForKey("k"), 2);
    EXPECT_EQ(other().integerForKey("l"), 3);
}

TEST_F(UserDefaultsTest, SynchronizeWritesWhatFailed) {
    blockWrites();
    defaults.set("k", std::int64_t(2));
    EXPECT_FALSE(defaults.synchronize());
    unblockWrites();
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(other().integerForKey("k"), 2);
}

TEST_F(UserDefaultsTest, SynchronizeWithNothingToWriteMakesNoFile) {
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(FileManager::fileExists(file.parent_path()));
}

TEST_F(UserDefaultsTest, FailsWhereAnotherKeepsTheLock) {
    defaults.set("k", std::int64_t(1));
    const auto lock = FileLock::tryLock(folder / "sub/.Preferences.plist.lock");
    ASSERT_TRUE(lock && *lock);
    defaults.set("k", std::int64_t(2));
    EXPECT_EQ(other().integerForKey("k"), 1);
    EXPECT_EQ(defaults.integerForKey("k"), 2);
}

TEST_F(UserDefaultsTest, TellsObserversOfAKeyWithinTheChange) {
    std::vector<std::string> seen;
    const auto token = defaults.observe("k", [&] { seen.push_back(std::to_string(defaults.integerForKey("k"))); });
    const auto otherToken = defaults.observe("l", [&] { seen.emplace_back("l"); });
    defaults.set("k", std::int64_t(1));
    EXPECT_THAT(seen, ElementsAre("1"));
    defaults.removeObject("k");
    EXPECT_THAT(seen, ElementsAre("1", "0"));
    runLoop();
    EXPECT_THAT(seen, ElementsAre("1", "0"));
}

TEST_F(UserDefaultsTest, TellsObserversOfAFailedWriteTooForTheValueStands) {
    blockWrites();
    int calls = 0;
    const auto token = defaults.observe("k", [&] { ++calls; });
    defaults.set("k", true);
    EXPECT_EQ(calls, 1);
}

TEST_F(UserDefaultsTest, AnObserverEndsWithItsToken) {
    int calls = 0;
    {
        const auto token = defaults.observe("k", [&] { ++calls; });
    }
    defaults.set("k", true);
    EXPECT_EQ(calls, 0);
}

TEST_F(UserDefaultsTest, TellsWhatAnotherProcessChangedInALaterTurn) {
    defaults.set("same", true);
    defaults.set("gone", true);
    std::vector<std::string> seen;
    std::vector<NotificationCenter::Token> tokens;
    for (const char* key : {"same", "gone", "new"})
        tokens.push_back(defaults.observe(key, [&seen, key] { seen.emplace_back(key); }));
    UserDefaults second = other();
    second.removeObject("gone");
    second.set("new", true);
    EXPECT_TRUE(defaults.boolForKey("new"));
    EXPECT_THAT(seen, IsEmpty());
    runLoop();
    EXPECT_THAT(seen, ElementsAre("new", "gone"));
}

TEST_F(UserDefaultsTest, TellsWhatAWriteFoundChanged) {
    std::vector<std::string> seen;
    const auto own = defaults.observe("own", [&] { seen.emplace_back("own"); });
    const auto foreign = defaults.observe("foreign", [&] { seen.emplace_back("foreign"); });
    other().set("foreign", true);
    defaults.set("own", true);
    runLoop();
    EXPECT_THAT(seen, ElementsAre("own", "foreign"));
}

TEST_F(UserDefaultsTest, TellsNobodyOnceTheStoreIsGone) {
    int calls = 0;
    NotificationCenter::Token token;
    {
        UserDefaults brief(file);
        token = brief.observe("k", [&] { ++calls; });
        other().set("k", true);
        EXPECT_TRUE(brief.boolForKey("k"));
    }
    runLoop();
    EXPECT_EQ(calls, 0);
}

TEST_F(UserDefaultsTest, LiesInTheUsersFolderForConfiguration) {
    const char* const oldConfig = std::getenv("XDG_CONFIG_HOME");
    const char* const oldHome = std::getenv("HOME");
    const std::optional<std::string> config = oldConfig ? std::optional<std::string>(oldConfig) : std::nullopt;
    const std::optional<std::string> home = oldHome ? std::optional<std::string>(oldHome) : std::nullopt;
    ::setenv("XDG_CONFIG_HOME", "/c", 1);
    ::setenv("HOME", "/h", 1);
    EXPECT_EQ(UserDefaults::standardFile("brindle"), "/c/brindle/Preferences.plist");
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    EXPECT_EQ(UserDefaults::standardFile("brindle"), "/h/.config/brindle/Preferences.plist");
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("HOME");
    EXPECT_EQ(UserDefaults::standardFile("brindle"), std::nullopt);
    config ? ::setenv("XDG_CONFIG_HOME", config->c_str(), 1) : ::unsetenv("XDG_CONFIG_HOME");
    home ? ::setenv("HOME", home->c_str(), 1) : ::unsetenv("HOME");
}

} // namespace
} // namespace brindle
