#include "desktop/Options.hpp"

#include "foundation/FileManager.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(OptionsTest, AreEmptyWithoutWords) {
    const auto options = Options::parse({}, "/home/ada");
    ASSERT_TRUE(options);
    EXPECT_FALSE(options->help || options->version || options->background || options->supportDirectory);
    EXPECT_THAT(options->uris(), IsEmpty());
}

TEST(OptionsTest, KnowTheirNames) {
    const auto options = Options::parse({"--help", "--version", "--background", "--show-feeds-browser"}, "/home/ada");
    ASSERT_TRUE(options);
    EXPECT_TRUE(options->help && options->version && options->background && options->showsFeedsBrowser);
}

TEST(OptionsTest, TakeASupportFolderInBothForms) {
    EXPECT_EQ(Options::parse({"--support-dir", "feeds"}, "/home/ada")->supportDirectory, "/home/ada/feeds");
    EXPECT_EQ(Options::parse({"--support-dir=/tmp/feeds"}, "/home/ada")->supportDirectory, "/tmp/feeds");
}

TEST(OptionsTest, RefuseASupportFolderWithoutAName) {
    EXPECT_EQ(Options::parse({"--support-dir"}, "/").error(), "--support-dir needs a folder");
    EXPECT_EQ(Options::parse({"--support-dir="}, "/").error(), "--support-dir needs a folder");
}

TEST(OptionsTest, RefuseAnUnknownOption) {
    EXPECT_EQ(Options::parse({"--loud"}, "/").error(), "unknown option \"--loud\"");
}

TEST(OptionsTest, TakeAddressesOfThreeSchemesAsTheyAre) {
    const auto options = Options::parse({"feed://a.example/x", "http://b.example/", "HTTPS://c.example"}, "/");
    ASSERT_TRUE(options);
    EXPECT_THAT(options->addresses, ElementsAre("feed://a.example/x", "http://b.example/", "HTTPS://c.example"));
}

TEST(OptionsTest, TakeOPMLFilesByPathAndByURI) {
    const auto options = Options::parse({"mine.opml", "/srv/Theirs.OPML", "file:///srv/with%20blank.opml"}, "/home/ada");
    ASSERT_TRUE(options);
    EXPECT_THAT(options->files, ElementsAre("/home/ada/mine.opml", "/srv/Theirs.OPML", "/srv/with blank.opml"));
}

TEST(OptionsTest, RefuseAnyOtherWord) {
    EXPECT_THAT(Options::parse({"feeds.txt"}, "/").error(), HasSubstr("feeds.txt"));
    EXPECT_FALSE(Options::parse({"file:///etc/passwd"}, "/"));
    EXPECT_FALSE(Options::parse({"ftp://a.example/x.opml.gz"}, "/"));
    EXPECT_FALSE(Options::parse({""}, "/"));
}

TEST(OptionsTest, SkipAnyOtherWordBesideOnesThatCanBeOpened) {
    const auto options = Options::parse({"ftp://a.example/x", "feed:b.example", "feeds.txt"}, "/");
    ASSERT_TRUE(options);
    EXPECT_THAT(options->skipped, ElementsAre("ftp://a.example/x", "feeds.txt"));
    EXPECT_THAT(options->uris(), ElementsAre("feed:b.example"));
}

TEST(OptionsTest, GiveUpTheFilesThatDontExist) {
    const TemporaryFolder folder;
    ASSERT_TRUE(FileManager::writeAtomically(folder / "mine.opml", "<opml/>"));
    auto options = Options::parse({"no.opml", "mine.opml"}, folder.path());
    ASSERT_TRUE(options);
    EXPECT_THAT(options->takeMissingFiles(), ElementsAre(folder / "no.opml"));
    EXPECT_THAT(options->files, ElementsAre(folder / "mine.opml"));
}

TEST(OptionsTest, EndAtTwoHyphens) {
    EXPECT_EQ(Options::parse({"--", "--background.opml"}, "/srv")->files.front(), "/srv/--background.opml");
}

TEST(OptionsTest, NameAnInstanceForEachSupportFolder) {
    const auto nameFor = [](const std::vector<std::string>& words) { return Options::parse(words, "/")->instanceName(); };
    EXPECT_EQ(nameFor({"--background"}), "org.brindle.Brindle");
    EXPECT_EQ(nameFor({"--support-dir", "/a"}), nameFor({"--support-dir=a", "feed:b.example"}));
    EXPECT_NE(nameFor({"--support-dir", "/a"}), nameFor({"--support-dir", "/b"}));
    EXPECT_NE(nameFor({"--support-dir", "/a"}), nameFor({}));
}

TEST(OptionsTest, TellWhatStartsTheSameInstance) {
    EXPECT_EQ(Options::parse({"feed:a.example"}, "/")->command("/b"), std::vector<std::string>{"/b"});
    EXPECT_EQ(Options::parse({"--support-dir", "x"}, "/srv")->command("/b"), (std::vector<std::string>{"/b", "--support-dir", "/srv/x"}));
}

TEST(OptionsTest, SurviveTheWayToAnotherProcess) {
    const auto sent = Options::parse({"feed:a.example", "/srv/ä ö.opml"}, "/");
    ASSERT_TRUE(sent);
    Options received;
    for (const std::string& uri : sent->uris())
        EXPECT_TRUE(received.addURI(uri)) << uri;
    EXPECT_EQ(received.addresses, sent->addresses);
    EXPECT_EQ(received.files, sent->files);
}

} // namespace brindle::desktop
