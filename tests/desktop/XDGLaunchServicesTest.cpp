#include "desktop/system/XDGLaunchServices.hpp"

#include "foundation/FileManager.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

namespace fs = std::filesystem;

class XDGLaunchServicesTest : public testing::Test {
protected:
    void write(const fs::path& file, std::string_view text) {
        ASSERT_TRUE(FileManager::createDirectory((_folder.path() / file).parent_path()));
        ASSERT_TRUE(FileManager::writeAtomically(_folder.path() / file, text));
    }
    std::string read(const fs::path& file) const { return FileManager::contents(_folder.path() / file).value_or(std::string()); }
    void install(const std::string& name) { write("data/applications/" + name + ".desktop", "[Desktop Entry]\nType=Application\n"); }
    XDGLaunchServices services(std::vector<std::string> desktops = {}) const {
        return XDGLaunchServices({_folder / "config", _folder / "home", {_folder / "etc"}, {_folder / "data"}, std::move(desktops)});
    }

    TemporaryFolder _folder;
};

} // namespace

TEST_F(XDGLaunchServicesTest, KnowsNoHandlerWithoutFiles) {
    EXPECT_EQ(services().defaultHandler("feed"), std::nullopt);
}

TEST_F(XDGLaunchServicesTest, TakesTheUsersDefault) {
    install("org.a.Reader");
    write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/feed=org.a.Reader.desktop\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.a.Reader");
    EXPECT_EQ(services().defaultHandler("http"), std::nullopt);
}

TEST_F(XDGLaunchServicesTest, PassesOverWhatIsNotInstalled) {
    install("org.b.Reader");
    write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/feed=org.a.Gone.desktop;org.b.Reader.desktop\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.b.Reader");
}

TEST_F(XDGLaunchServicesTest, PrefersTheListOfTheDesktop) {
    install("org.a.Reader");
    install("org.b.Reader");
    write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/feed=org.a.Reader.desktop\n");
    write("config/xfce-mimeapps.list", "[Default Applications]\nx-scheme-handler/feed=org.b.Reader.desktop\n");
    EXPECT_EQ(services({"xfce"}).defaultHandler("feed"), "org.b.Reader");
    EXPECT_EQ(services({"kde"}).defaultHandler("feed"), "org.a.Reader");
}

TEST_F(XDGLaunchServicesTest, TakesAnAssociationWhereNoListNamesADefault) {
    install("org.a.Reader");
    install("org.b.Reader");
    write("data/applications/mimeinfo.cache", "[MIME Cache]\nx-scheme-handler/feed=org.a.Reader.desktop;org.b.Reader.desktop;\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.a.Reader");
    write("config/mimeapps.list", "[Removed Associations]\nx-scheme-handler/feed=org.a.Reader.desktop;\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.b.Reader");
}

TEST_F(XDGLaunchServicesTest, TakesNoAssociationThatAnEarlierListRemoves) {
    install("org.a.Reader");
    install("org.b.Reader");
    write("config/mimeapps.list", "[Removed Associations]\nx-scheme-handler/feed=org.a.Reader.desktop;\n");
    write("etc/mimeapps.list", "[Added Associations]\nx-scheme-handler/feed=org.a.Reader.desktop;org.b.Reader.desktop;\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.b.Reader");
}

TEST_F(XDGLaunchServicesTest, WritesTheDefaultAndKeepsEverythingElse) {
    install("org.a.Reader");
    write("config/mimeapps.list",
        "# mine\n[Default Applications]\ntext/html=web.desktop\n\n[Added Associations]\ntext/plain=edit.desktop;\n");
    services().setDefaultHandler("feed", "org.a.Reader");
    EXPECT_EQ(read("config/mimeapps.list"),
        "# mine\n[Default Applications]\ntext/html=web.desktop\nx-scheme-handler/feed=org.a.Reader.desktop;\n\n"
        "[Added Associations]\ntext/plain=edit.desktop;\n");
    EXPECT_EQ(services().defaultHandler("feed"), "org.a.Reader");
}

TEST_F(XDGLaunchServicesTest, MakesTheListWhereThereIsNone) {
    services().setDefaultHandler("feed", "org.a.Reader");
    EXPECT_EQ(read("config/mimeapps.list"), "[Default Applications]\nx-scheme-handler/feed=org.a.Reader.desktop;\n");
}

TEST_F(XDGLaunchServicesTest, WinsOverTheListOfTheDesktop) {
    install("org.a.Reader");
    install("org.b.Reader");
    write("config/xfce-mimeapps.list", "[Default Applications]\nx-scheme-handler/feed=org.b.Reader.desktop\n");
    services({"xfce"}).setDefaultHandler("feed", "org.a.Reader");
    EXPECT_EQ(services({"xfce"}).defaultHandler("feed"), "org.a.Reader");
}

TEST_F(XDGLaunchServicesTest, KeepsALinkToAListThatLiesElsewhere) {
    write("dotfiles/list", "[Default Applications]\n");
    ASSERT_TRUE(FileManager::createDirectory(_folder / "config"));
    fs::create_symlink(_folder.path() / "dotfiles/list", _folder.path() / "config/mimeapps.list");
    services().setDefaultHandler("feed", "org.a.Reader");
    EXPECT_TRUE(fs::is_symlink(_folder.path() / "config/mimeapps.list"));
    EXPECT_NE(read("dotfiles/list").find("org.a.Reader.desktop"), std::string::npos);
}

} // namespace brindle::desktop
