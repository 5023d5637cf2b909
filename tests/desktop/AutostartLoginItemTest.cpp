#include "desktop/system/AutostartLoginItem.hpp"

#include "desktop/system/KeyFile.hpp"
#include "foundation/FileManager.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class AutostartLoginItemTest : public testing::Test {
protected:
    AutostartLoginItem item(const std::vector<std::string>& command = {"/usr/bin/brindle"}) const {
        return {XDGFolders{_folder / "config", {}, {}, {}, {}}, command};
    }
    std::filesystem::path file() const { return _folder.path() / "config/autostart/org.brindle.Brindle.Launcher.desktop"; }

    TemporaryFolder _folder;
};

constexpr const char* identifier = "org.brindle.Brindle.Launcher";

} // namespace

TEST_F(AutostartLoginItemTest, WritesAnEntryThatStartsTheProgramInTheBackground) {
    ASSERT_TRUE(item().setEnabled(identifier, true));
    const KeyFile entry(FileManager::contents(file()).value());
    EXPECT_EQ(entry.value("Desktop Entry", "Type"), "Application");
    EXPECT_EQ(entry.value("Desktop Entry", "Exec"), "\"/usr/bin/brindle\" --background");
}

TEST_F(AutostartLoginItemTest, WritesTheArgumentsOfTheProgram) {
    ASSERT_TRUE(item({"/usr/bin/brindle", "--support-dir", "/home/a b"}).setEnabled(identifier, true));
    const KeyFile entry(FileManager::contents(file()).value());
    EXPECT_EQ(entry.value("Desktop Entry", "Exec"), R"("/usr/bin/brindle" "--support-dir" "/home/a b" --background)");
}

TEST_F(AutostartLoginItemTest, TakesTheEntryAwayAgain) {
    ASSERT_TRUE(item().setEnabled(identifier, true));
    EXPECT_TRUE(item().setEnabled(identifier, false));
    EXPECT_FALSE(FileManager::fileExists(file()));
    EXPECT_TRUE(item().setEnabled(identifier, false));
}

TEST_F(AutostartLoginItemTest, QuotesTheProgramsPath) {
    EXPECT_EQ(AutostartLoginItem::quoted("/opt/my \"own\" $x/50%"), R"("/opt/my \\"own\\" \\$x/50%%")");
    EXPECT_EQ(AutostartLoginItem::quoted(R"(a\b)"), R"("a\\\\b")");
}

TEST_F(AutostartLoginItemTest, FailsWhereTheFolderCantBeMade) {
    ASSERT_TRUE(FileManager::writeAtomically(_folder / "config", "a file"));
    EXPECT_FALSE(item().setEnabled(identifier, true));
    AutostartLoginItem homeless(XDGFolders{}, {"/usr/bin/brindle"});
    EXPECT_FALSE(homeless.setEnabled(identifier, true));
}

} // namespace brindle::desktop
