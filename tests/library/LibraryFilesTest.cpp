#include "Brindle/library/ArticleStateCacheCoding.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/PropertyList.hpp"
#include "tests/library/LibraryFixture.hpp"
#include "tests/support/Folders.hpp"

#include <algorithm>
#include <cstdio>
#include <gmock/gmock.h>
#include <random>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// What the library stores, and how it comes back.
class LibraryFilesTest : public LibraryTest {
protected:
    /// What the independent reader and writer of libraries prints.
    std::string script(const std::string& arguments) {
        const std::string command = "python3 '" + testsupport::sourceFolder() + "/tests/library/check-library.py' " + arguments + " 2>&1";
        std::FILE* const output = ::popen(command.c_str(), "r");
        std::string text;
        for (int character = std::fgetc(output); character != EOF; character = std::fgetc(output))
            text += static_cast<char>(character);
        EXPECT_EQ(::pclose(output), 0) << text;
        return text;
    }

    std::string quoted(const std::string& name) const { return "'" + (folder / name).string() + "'"; }

    static std::string outline(const FeedsManager& manager) {
        std::string text;
        forEachFeed(manager.feeds, [&](const std::shared_ptr<Feed>& feed) {
            for (auto parent = feed->parent.lock(); parent; parent = parent->parent.lock())
                text += "  ";
            if (feed->kind == Feed::Kind::separator)
                text += "separator";
            else if (feed->kind == Feed::Kind::group)
                text += "group " + feed->name();
            else
                text += "item " + feed->name() + " " + static_cast<FeedItem&>(*feed).url().absoluteString() + " " +
                        std::to_string(static_cast<FeedItem&>(*feed).updateRate) + " " + static_cast<FeedItem&>(*feed).username;
            text += "\n";
        });
        return text;
    }

    /// A group with a feed, a separator and a second feed, saved.
    std::shared_ptr<FeedItem> saveSample() {
        const auto manager = makeManager();
        const auto group = FeedGroup::make("Group");
        manager->addFeed(group, 0);
        const auto item = makeItem("Ítem", "http://a.invalid/1");
        item->uuid = *UUID::make(uuidText);
        item->username = "user";
        manager->addFeed(item, 0, group);
        manager->addFeed(FeedSeparator::make(), 1);
        const auto other = makeItem("Other", "http://a.invalid/2");
        other->updateRate = 5;
        other->uuid = *UUID::make("00000000-0000-4000-8000-000000000000");
        manager->addFeed(other, 2);
        item->data = std::string("bytes\0\xff", 7);
        item->articleStateCache = {{"Zwei&", 1}, {"Éins&", 0}, {"", 1}};
        item->setFeedImageData("icon");
        manager->save();
        takeLines();
        return item;
    }

    static constexpr const char* uuidText = "C0FFEE00-1234-4321-8888-0123456789AB";
};

TEST_F(LibraryFilesTest, StartsEmptyWithALineWhenNothingIsStored) {
    const auto manager = makeManager();
    manager->load();
    EXPECT_THAT(manager->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Could not load library, error: Could not read ")));
    EXPECT_FALSE(exists("Feeds.brindle"));
}

TEST_F(LibraryFilesTest, ComesBackAsItWasSaved) {
    saveSample();
    const auto manager = loadedManager();
    EXPECT_EQ(outline(*manager), "group Group\n  item Ítem http://a.invalid/1 30 user\nseparator\nitem Other http://a.invalid/2 5 \n");
    const auto items = FeedsManager::items(manager->feeds);
    ASSERT_THAT(items, SizeIs(2));
    EXPECT_EQ(items[0]->uuid.uuidString(), uuidText);
    EXPECT_EQ(items[0]->data, std::string("bytes\0\xff", 7));
    EXPECT_EQ(items[0]->articleStateCache, (ArticleStateCache{{"Zwei&", 1}, {"Éins&", 0}, {"", 1}}));
    EXPECT_EQ(items[0]->feedImageData(), "icon");
    EXPECT_EQ(items[0]->delegate.lock(), delegate);
    EXPECT_EQ(items[1]->delegate.lock(), delegate);
    EXPECT_THAT(items[0]->articles(), IsEmpty());
    EXPECT_FALSE(items[0]->hasTimer());
    EXPECT_EQ(manager->feeds[0]->parent.lock(), nullptr);
}

TEST_F(LibraryFilesTest, DropsTheGroupThatStandsForTheRootAtEachSaveAndLoad) {
    const auto manager = makeManager();
    manager->addFeed(FeedSeparator::make(), 0);
    manager->save();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup __SAVED_FEED_GROUP__"));
    EXPECT_EQ(manager->feeds[0]->parent.lock(), nullptr);
    const auto loaded = loadedManager();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup __SAVED_FEED_GROUP__"));
    EXPECT_EQ(loaded->feeds[0]->kind, Feed::Kind::separator);
}

TEST_F(LibraryFilesTest, IsReadByAnIndependentReader) {
    saveSample();
    EXPECT_EQ(script("outline " + quoted("Feeds.brindle")),
        "group __SAVED_FEED_GROUP__\n"
        "  group Group\n"
        "    item 30 Ítem | http://a.invalid/1 | user | C0FFEE00-1234-4321-8888-0123456789AB\n"
        "  separator\n"
        "  item 5 Other | http://a.invalid/2 |  | 00000000-0000-4000-8000-000000000000\n");
    EXPECT_EQ(script("states " + quoted(std::string("Caches/") + uuidText)), "1 \n1 Zwei&\n0 Éins&\n");
}

TEST_F(LibraryFilesTest, LoadsWhatTheOriginalPlatformWrote) {
    script("make " + quoted("Feeds.brindle"));
    const auto manager = loadedManager();
    EXPECT_EQ(outline(*manager),
        "item Première http://a.invalid/1 15 user\nseparator\ngroup Group\n  item Boxed http://a.invalid/2 45 \n  group Empty\n");
    EXPECT_EQ(FeedsManager::items(manager->feeds)[0]->uuid.uuidString(), uuidText);
}

TEST_F(LibraryFilesTest, RefusesAnArchiveWithAnyOtherClass) {
    script("odd " + quoted("Feeds.brindle") + " foreign-class");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), ::testing::Contains(StartsWith("Could not unarchive feeds, error: ")));
}

TEST_F(LibraryFilesTest, RefusesAnArchiveWithADictionaryAmongItsFeeds) {
    script("odd " + quoted("Feeds.brindle") + " dictionary");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup Before", StartsWith("Could not unarchive feeds, error: ")));
}

TEST_F(LibraryFilesTest, RefusesWhatIsNoArchive) {
    writeFile("Feeds.brindle", "no archive");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Could not unarchive feeds, error: ")));
    EXPECT_EQ(file("Feeds.brindle"), "no archive");
}

TEST_F(LibraryFilesTest, PassesOverAnArchiveWhoseRootIsNoGroup) {
    script("odd " + quoted("Feeds.brindle") + " no-group");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), IsEmpty());
}

TEST_F(LibraryFilesTest, TakesValuesOfOtherTypesForMissing) {
    script("odd " + quoted("Feeds.brindle") + " wrong-types");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup "));
}

TEST_F(LibraryFilesTest, AppendsToWhatItHolds) {
    saveSample();
    const auto manager = makeManager();
    manager->addFeed(makeItem("Default", "http://a.invalid/0"), 0);
    manager->load();
    EXPECT_THAT(manager->feeds, SizeIs(4));
    EXPECT_EQ(manager->feeds[0]->name(), "Default");
}

TEST_F(LibraryFilesTest, OverwritesABadLibraryAtTheNextSave) {
    writeFile("Feeds.brindle", "no archive");
    const auto manager = loadedManager();
    manager->addFeed(FeedSeparator::make(), 0);
    manager->save();
    EXPECT_THAT(loadedManager()->feeds, SizeIs(1));
}

TEST_F(LibraryFilesTest, BringsBackTheLastFeedsWhenAllWereRemoved) {
    saveSample();
    const auto manager = loadedManager();
    while (!manager->feeds.empty())
        manager->removeFeed(manager->feeds.front());
    const std::string stored = file("Feeds.brindle");
    manager->save();
    EXPECT_EQ(file("Feeds.brindle"), stored);
    EXPECT_THAT(loadedManager()->feeds, SizeIs(3));
    EXPECT_TRUE(exists(std::string("Data/") + uuidText));
}

TEST_F(LibraryFilesTest, DoesNotStoreThatUpdatesAreNotAllowed) {
    {
        const auto manager = makeManager();
        manager->addFeed(makeItem(), 0);
        manager->allowUpdates = false;
        manager->applyUpdateState(manager->feeds);
        manager->save();
    }
    const auto manager = loadedManager();
    EXPECT_TRUE(manager->allowUpdates);
    manager->applyUpdateState(manager->feeds);
    const auto item = FeedsManager::items(manager->feeds)[0];
    EXPECT_TRUE(item->hasTimer());
    EXPECT_TRUE(item->session().isQueued()) << "it fetches, and waits for the network";
}

TEST_F(LibraryFilesTest, LoadsAFeedWithoutFilesClean) {
    const auto item = saveSample();
    for (const std::string kind : {"Data/", "Caches/", "Images/"})
        std::filesystem::remove(folder / (kind + uuidText));
    const auto manager = loadedManager();
    const auto loaded = FeedsManager::items(manager->feeds)[0];
    EXPECT_EQ(loaded->data, "");
    EXPECT_THAT(loaded->articleStateCache, IsEmpty());
    EXPECT_FALSE(loaded->feedImageData());
    EXPECT_THAT(titles(parse(*loaded, rss({{"A", ""}, {"B", ""}})).newArticles), ElementsAre("A", "B"));
}

TEST_F(LibraryFilesTest, WritesAnEmptyDocumentAndNoIconThatIsNotHeld) {
    const auto item = saveSample();
    const std::string other = "00000000-0000-4000-8000-000000000000";
    EXPECT_EQ(file("Data/" + other), "");
    EXPECT_TRUE(exists("Caches/" + other));
    EXPECT_FALSE(exists("Images/" + other));
}

TEST_F(LibraryFilesTest, LeavesAnOlderIconFileWhereNoIconIsHeld) {
    saveSample();
    const auto manager = loadedManager();
    manager->clearImages(manager->feeds);
    manager->save();
    EXPECT_EQ(FeedsManager::items(loadedManager()->feeds)[0]->feedImageData(), "icon");
}

TEST_F(LibraryFilesTest, LeavesOutAnIconThatCannotBeRead) {
    saveSample();
    std::filesystem::remove(folder / "Images" / uuidText);
    std::filesystem::create_directory(folder / "Images" / uuidText);
    EXPECT_FALSE(FeedsManager::items(loadedManager()->feeds)[0]->feedImageData());
}

TEST_F(LibraryFilesTest, LeavesTheTableOfAFeedEmptyWhenItsFileIsDamaged) {
    saveSample();
    for (const std::string damaged : {"", "no list", "bplist00", "<plist><dict><key>A</key><string>1</string></dict></plist>"}) {
        writeFile(std::string("Caches/") + uuidText, damaged);
        EXPECT_THAT(FeedsManager::items(loadedManager()->feeds)[0]->articleStateCache, IsEmpty()) << damaged;
    }
}

TEST_F(LibraryFilesTest, ReadsATableInTheOtherFormOfPropertyList) {
    saveSample();
    writeFile(std::string("Caches/") + uuidText,
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>A&amp;</key><integer>1</integer><key>B&amp;</key><true/>"
        "<key>C&amp;</key><real>2.0</real></dict></plist>");
    EXPECT_EQ(FeedsManager::items(loadedManager()->feeds)[0]->articleStateCache, (ArticleStateCache{{"A&", 1}, {"B&", 1}, {"C&", 2}}));
}

TEST_F(LibraryFilesTest, ReadsNoTableWithAValueThatIsNoWholeNumber) {
    for (const PropertyList::Object& value :
        {PropertyList::Object(1.5), PropertyList::Object(0x1p63), PropertyList::Object(std::string("1"))}) {
        PropertyList list;
        const auto key = list.add(std::string("A&"));
        list.root = list.add(PropertyList::Dictionary{{key, list.add(value)}});
        EXPECT_FALSE(decodeArticleStates(list.binary()));
    }
}

TEST_F(LibraryFilesTest, WritesOneTableInOneWay) {
    ArticleStateCache forward, backward;
    for (int i = 0; i < 1000; ++i) {
        forward.emplace(std::to_string(i), i % 2);
        backward.emplace(std::to_string(999 - i), (999 - i) % 2);
    }
    EXPECT_EQ(encodeArticleStates(forward), encodeArticleStates(backward));
    EXPECT_EQ(decodeArticleStates(encodeArticleStates(forward)), forward);
}

TEST_F(LibraryFilesTest, WritesTheSameBytesForTheSameLibrary) {
    saveSample();
    const std::string first = file("Feeds.brindle"), states = file(std::string("Caches/") + uuidText);
    loadedManager()->save();
    EXPECT_EQ(file("Feeds.brindle"), first);
    EXPECT_EQ(file(std::string("Caches/") + uuidText), states);
}

TEST_F(LibraryFilesTest, TellsOfALibraryThatCannotBeWrittenAndWritesTheFeedsFilesAllTheSame) {
    const auto manager = makeManager();
    const auto item = makeItem();
    item->data = "document";
    manager->addFeed(item, 0);
    std::filesystem::create_directory(folder / "Feeds.brindle");
    EXPECT_FALSE(manager->save());
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup __SAVED_FEED_GROUP__", StartsWith("Could not write Feeds Library, error: ")));
    EXPECT_EQ(file("Data/" + item->uuid.uuidString()), "document");
}

TEST_F(LibraryFilesTest, TakesAwayWhatACrashLeftBesideTheLibrary) {
    const auto manager = makeManager();
    manager->addFeed(FeedSeparator::make(), 0);
    writeFile(".Feeds.brindle.tmp", "half a libr");
    EXPECT_TRUE(manager->save());
    EXPECT_FALSE(exists(".Feeds.brindle.tmp"));
    EXPECT_THAT(loadedManager()->feeds, SizeIs(1));
}

TEST_F(LibraryFilesTest, ImportsALegacyLibraryOnceAndMovesIt) {
    script("legacy " + quoted("Feeds Library.brindle"));
    const std::string expected =
        "item One http://a.invalid/1 15 user\nseparator\ngroup Group\n  item Two http://a.invalid/2 30 \n  group \n"
        "item Last http://a.invalid/4 30 \n";
    {
        const auto manager = loadedManager();
        EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup __LEGACY_FEED_GROUP__"));
        EXPECT_EQ(outline(*manager), expected);
        const auto items = FeedsManager::items(manager->feeds);
        EXPECT_EQ(items[0]->uuid.uuidString(), uuidText);
        EXPECT_EQ(items[1]->delegate.lock(), delegate);
        EXPECT_EQ(items[1]->password, "");
        EXPECT_FALSE(exists("Feeds Library.brindle"));
        EXPECT_TRUE(exists("Old Feeds Library.brindle"));
        manager->save();
    }
    EXPECT_TRUE(exists("Feeds.brindle"));
    EXPECT_EQ(outline(*loadedManager()), expected);
}

TEST_F(LibraryFilesTest, PrefersALegacyLibraryToTheArchive) {
    saveSample();
    script("legacy " + quoted("Feeds Library.brindle"));
    EXPECT_EQ(loadedManager()->feeds[0]->name(), "One");
}

TEST_F(LibraryFilesTest, ImportsALegacyLibraryAgainWhenItCouldNotBeMoved) {
    script("legacy " + quoted("Feeds Library.brindle"));
    writeFile("Old Feeds Library.brindle", "in the way");
    EXPECT_THAT(loadedManager()->feeds, SizeIs(4));
    EXPECT_THAT(takeLines(), ::testing::Contains(StartsWith("Could not move legacy library, error: ")));
    EXPECT_EQ(file("Old Feeds Library.brindle"), "in the way");
    EXPECT_THAT(loadedManager()->feeds, SizeIs(4));
}

TEST_F(LibraryFilesTest, MovesALegacyLibraryThatCannotBeRead) {
    writeFile("Feeds Library.brindle", "no list");
    EXPECT_THAT(loadedManager()->feeds, IsEmpty());
    EXPECT_TRUE(exists("Old Feeds Library.brindle"));
}

TEST_F(LibraryFilesTest, ImportsALegacyLibraryThatContainsItselfOnce) {
    PropertyList list;
    const auto array = list.add(PropertyList::Array());
    const auto kind = list.add(std::string("Kind")), group = list.add(std::string("feedGroup")),
               children = list.add(std::string("groupList"));
    const auto dictionary = list.add(PropertyList::Dictionary{{kind, group}, {children, array}});
    list.objects[array] = PropertyList::Array{dictionary, dictionary};
    list.root = array;
    writeFile("Feeds Library.brindle", list.binary());
    EXPECT_THAT(loadedManager()->feeds, SizeIs(2));
}

TEST_F(LibraryFilesTest, MakesItsFolders) {
    FeedsManager manager(folder / "New" / "Brindle", environment, delegate);
    manager.createSupportDirectories();
    manager.createSupportDirectories();
    for (const std::string name : {"Caches", "Images", "Data"})
        EXPECT_TRUE(std::filesystem::is_directory(folder / "New/Brindle" / name)) << name;
    EXPECT_THAT(takeLines(), IsEmpty());
}

TEST_F(LibraryFilesTest, TellsOfEachFolderThatCannotBeMade) {
    writeFile("file", "");
    FeedsManager manager(folder / "file" / "Brindle", environment, delegate);
    manager.createSupportDirectories();
    EXPECT_THAT(takeLines(),
        ElementsAre(StartsWith("Could not create directory Brindle, error: "), StartsWith("Could not create directory Caches, error: "),
            StartsWith("Could not create directory Images, error: "), StartsWith("Could not create directory Data, error: ")));
}

TEST_F(LibraryFilesTest, RemovesTheFoldersOfTheCachesAndKeepsWhatIsInMemory) {
    saveSample();
    const auto manager = loadedManager();
    manager->resetCaches();
    for (const std::string name : {"Data", "Caches", "Images"})
        EXPECT_FALSE(exists(name)) << name;
    EXPECT_NE(FeedsManager::items(manager->feeds)[0]->data, "");
    takeLines();
    manager->save();
    EXPECT_FALSE(exists("Data"));
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup __SAVED_FEED_GROUP__"));
}

TEST_F(LibraryFilesTest, KeepsAnEmptyFolderWhenTheCachesAreReset) {
    const auto manager = makeManager();
    writeFile("Data/file", "");
    writeFile("Caches/.hidden", "");
    manager->resetCaches();
    EXPECT_FALSE(exists("Data"));
    EXPECT_TRUE(exists("Caches"));
    EXPECT_TRUE(exists("Images"));
}

TEST_F(LibraryFilesTest, RemovesTheFilesOfOneFeed) {
    const auto item = saveSample();
    makeManager()->resetCaches(*item);
    for (const std::string kind : {"Data/", "Caches/", "Images/"})
        EXPECT_FALSE(exists(kind + uuidText)) << kind;
    EXPECT_TRUE(exists("Data/00000000-0000-4000-8000-000000000000"));
}

TEST_F(LibraryFilesTest, SurvivesEveryTruncationOfItsArchive) {
    saveSample();
    const std::string whole = file("Feeds.brindle");
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        writeFile("Feeds.brindle", std::string_view(whole).substr(0, size));
        EXPECT_LE(loadedManager()->feeds.size(), 3U) << size;
    }
}

TEST_F(LibraryFilesTest, SurvivesDamageAnywhereInItsArchive) {
    saveSample();
    const std::string whole = file("Feeds.brindle");
    std::mt19937 random(20240229);
    for (int round = 0; round < 500; ++round) {
        std::string damaged = whole;
        damaged[random() % damaged.size()] = static_cast<char>(random());
        writeFile("Feeds.brindle", damaged);
        const auto manager = loadedManager();
        EXPECT_LE(FeedsManager::items(manager->feeds).size(), 2U) << round;
    }
}

} // namespace
} // namespace brindle
