#include "Brindle/library/SavedArticlesManager.hpp"

#include "foundation/FileManager.hpp"
#include "foundation/KeyedArchiver.hpp"
#include "tests/library/LibraryFixture.hpp"
#include "tests/support/Folders.hpp"

#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace brindle {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

/// An object in an archive by the name of its class, with no fields of its own.
struct NamedObject : Coding {
    explicit NamedObject(std::string_view name) : className(name) {}
    std::vector<std::string_view> archiveClasses() const override { return {className}; }
    void encode(Coder&) const override {}

    std::string_view className;
};

class SavedArticlesManagerTest : public LibraryTest {
protected:
    static constexpr const char* name = "Saved Articles.brindle";

    std::shared_ptr<FeedItemArticle> makeArticle(
        const std::string& title, const std::string& identifier, const std::string& link = {}, const std::weak_ptr<FeedItem>& item = {}) {
        const auto entry = std::make_shared<SyndicatedEntry>(clock->now());
        entry->title = title;
        entry->identifier = identifier;
        if (!link.empty()) {
            entry->links.emplace_back();
            entry->links.back().url = url(link);
        }
        return std::make_shared<FeedItemArticle>(entry, item);
    }

    /// The manager of the next launch.
    SavedArticlesManager loaded() {
        SavedArticlesManager next(folder, environment);
        next.load();
        return next;
    }

    /// What another reader makes of the file.
    nlohmann::json readByAnother() const {
        const std::string script = testsupport::sourceFolder() + "/tests/foundation/keyed_archive.py";
        std::FILE* const pipe = ::popen(("python3 '" + script + "' read '" + (folder / name).string() + "'").c_str(), "r");
        std::string output;
        std::array<char, 4096> buffer{};
        for (std::size_t size = 1; pipe != nullptr && size > 0;) {
            size = std::fread(buffer.data(), 1, buffer.size(), pipe);
            output.append(buffer.data(), size);
        }
        EXPECT_TRUE(pipe != nullptr && ::pclose(pipe) == 0);
        return nlohmann::json::parse(output, nullptr, false);
    }

    SavedArticlesManager manager{folder, environment};
};

TEST_F(SavedArticlesManagerTest, StartsEmpty) {
    EXPECT_THAT(manager.savedArticles, IsEmpty());
    EXPECT_FALSE(exists(name));
}

TEST_F(SavedArticlesManagerTest, SavingAppendsTheLiveObjectAndStoresIt) {
    const auto first = makeArticle("A", "1"), second = makeArticle("B", "2");
    EXPECT_TRUE(manager.saveArticle(first));
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A"));
    EXPECT_TRUE(manager.saveArticle(second));
    EXPECT_THAT(manager.savedArticles, ElementsAre(first, second));
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A", "B"));
    EXPECT_THAT(takeLines(), Each("Removing FeedItemArticle")) << "of what was loaded";
}

TEST_F(SavedArticlesManagerTest, SavingTheSameEntryTwiceHoldsOneCopyAndWritesOnce) {
    const auto article = makeArticle("A", "1");
    manager.saveArticle(article);
    std::filesystem::remove(folder / name);
    EXPECT_TRUE(manager.saveArticle(article));
    EXPECT_TRUE(manager.saveArticle(makeArticle("Other", "1")));
    EXPECT_THAT(manager.savedArticles, ElementsAre(article));
    EXPECT_FALSE(exists(name));
}

TEST_F(SavedArticlesManagerTest, ArticlesWithoutAnIdentifierAreTheSameByTheirLink) {
    manager.saveArticle(makeArticle("Old title", "", "http://a.invalid/1"));
    manager.saveArticle(makeArticle("New title", "", "http://a.invalid/1"));
    manager.saveArticle(makeArticle("Old title", "", "http://a.invalid/2"));
    EXPECT_THAT(titles(manager.savedArticles), ElementsAre("Old title", "Old title"));
}

TEST_F(SavedArticlesManagerTest, IdentifiersAreComparedExactly) {
    for (const char* identifier : {"a", "A", "a ", "\u00e1", "a\u0301"})
        manager.saveArticle(makeArticle("Title", identifier));
    EXPECT_EQ(manager.savedArticles.size(), 5U);
}

TEST_F(SavedArticlesManagerTest, UnsavingRemovesAnArticleThatIsOnlyEqualByIdentifier) {
    const auto first = makeArticle("A", "1"), second = makeArticle("B", "2"), third = makeArticle("C", "3");
    for (const auto& article : {first, second, third})
        manager.saveArticle(article);
    EXPECT_TRUE(manager.unsaveArticle(*makeArticle("Later title", "2")));
    EXPECT_THAT(manager.savedArticles, ElementsAre(first, third));
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A", "C"));
}

TEST_F(SavedArticlesManagerTest, UnsavingWhatIsNotSavedWritesNothing) {
    manager.saveArticle(makeArticle("A", "1"));
    std::filesystem::remove(folder / name);
    EXPECT_TRUE(manager.unsaveArticle(*makeArticle("A", "2")));
    EXPECT_EQ(manager.savedArticles.size(), 1U);
    EXPECT_FALSE(exists(name));
}

TEST_F(SavedArticlesManagerTest, TheLastArticleThatIsUnsavedComesBackAtTheNextLaunch) {
    const auto article = makeArticle("A", "1");
    manager.saveArticle(article);
    EXPECT_TRUE(manager.unsaveArticle(*article));
    EXPECT_THAT(manager.savedArticles, IsEmpty());
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A"));
}

TEST_F(SavedArticlesManagerTest, AnEmptyListIsNotWritten) {
    EXPECT_TRUE(manager.save());
    EXPECT_FALSE(exists(name));
}

TEST_F(SavedArticlesManagerTest, ALoadedArticleHasNoFeedAndIsUnread) {
    auto item = makeItem("Feed");
    const auto article = makeArticle("A", "1", "http://a.invalid/1", item);
    article->entry->setIsRead(true);
    manager.saveArticle(article);
    const auto copy = loaded();
    ASSERT_EQ(copy.savedArticles.size(), 1U);
    EXPECT_EQ(copy.savedArticles[0]->feedItem.lock(), nullptr);
    EXPECT_FALSE(copy.savedArticles[0]->entry->isRead());
    EXPECT_EQ(copy.savedArticles[0]->entry->preferredLinkURL(), url("http://a.invalid/1"));
    // The copy of the feed that was in the archive.
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItem: Feed"));
}

TEST_F(SavedArticlesManagerTest, ASavedArticleOutlivesItsFeed) {
    auto item = makeItem();
    manager.saveArticle(makeArticle("A", "1", {}, item));
    item.reset();
    EXPECT_TRUE(manager.save());
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A"));
}

TEST_F(SavedArticlesManagerTest, LoadingAppendsInOrder) {
    manager.saveArticle(makeArticle("A", "1"));
    manager.saveArticle(makeArticle("B", "2"));
    EXPECT_TRUE(manager.load());
    EXPECT_THAT(titles(manager.savedArticles), ElementsAre("A", "B", "A", "B"));
}

TEST_F(SavedArticlesManagerTest, AnotherReaderFindsAnArrayOfArticlesWithTheirFeed) {
    const auto item = makeItem("Feed", "http://a.invalid/feed");
    manager.saveArticle(makeArticle("A", "1", "http://a.invalid/1", item));
    manager.saveArticle(makeArticle("B", "2", {}, item));
    const nlohmann::json archive = readByAnother();
    ASSERT_EQ(archive.size(), 2U);
    EXPECT_EQ(archive[0]["classes"], (nlohmann::json{"FeedItemArticle", "NSObject"}));
    EXPECT_EQ(archive[0]["id"], "1");
    EXPECT_EQ(archive[0]["links"][0]["linkURL"], "http://a.invalid/1");
    EXPECT_EQ(archive[1]["title"], "B");
    EXPECT_EQ(archive[1]["parentFeedItem"]["feedURL"], "http://a.invalid/feed");
}

TEST_F(SavedArticlesManagerTest, AMissingFileIsALine) {
    EXPECT_FALSE(manager.load());
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Could not load saved articles, error: ")));
}

TEST_F(SavedArticlesManagerTest, ADamagedFileIsALineAndIsReplacedByTheNextSave) {
    writeFile(name, "bplist00 damaged");
    EXPECT_FALSE(manager.load());
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Could not unarchive saved articles, error: ")));
    EXPECT_THAT(manager.savedArticles, IsEmpty());
    EXPECT_TRUE(manager.saveArticle(makeArticle("A", "1")));
    EXPECT_THAT(titles(loaded().savedArticles), ElementsAre("A"));
}

TEST_F(SavedArticlesManagerTest, AClassThatIsNotAllowedRefusesTheFile) {
    const std::vector<std::shared_ptr<const Coding>> root = {makeArticle("A", "1"), std::make_shared<NamedObject>("FeedGroup")};
    writeFile(name, KeyedArchiver::archivedData(root).value());
    EXPECT_FALSE(manager.load());
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedItemArticle", StartsWith("Could not unarchive saved articles, error: ")));
    EXPECT_THAT(manager.savedArticles, IsEmpty());
}

TEST_F(SavedArticlesManagerTest, WhatIsNoListOfArticlesIsPassedOverSilently) {
    writeFile(name, KeyedArchiver::archivedData(makeArticle("A", "1")).value());
    EXPECT_FALSE(manager.load());
    const std::vector<std::shared_ptr<const Coding>> mixed = {makeArticle("A", "1"), nullptr};
    writeFile(name, KeyedArchiver::archivedData(mixed).value());
    EXPECT_FALSE(manager.load());
    EXPECT_THAT(takeLines(), Each("Removing FeedItemArticle"));
    const std::vector<std::shared_ptr<const Coding>> withFeed = {makeArticle("A", "1"), makeItem("Feed")};
    writeFile(name, KeyedArchiver::archivedData(withFeed).value());
    takeLines();
    EXPECT_FALSE(manager.load());
    EXPECT_THAT(takeLines(), UnorderedElementsAre("Removing FeedItemArticle", "Removing FeedItem: Feed"));
    EXPECT_THAT(manager.savedArticles, IsEmpty());
}

TEST_F(SavedArticlesManagerTest, AStoredListWithoutArticlesIsRead) {
    writeFile(name, KeyedArchiver::archivedData(std::vector<std::shared_ptr<const Coding>>()).value());
    EXPECT_TRUE(manager.load());
    EXPECT_THAT(manager.savedArticles, IsEmpty());
    EXPECT_THAT(takeLines(), IsEmpty());
}

TEST_F(SavedArticlesManagerTest, AFailedWriteIsALineAndTheListStays) {
    std::filesystem::create_directory(folder / name);
    EXPECT_FALSE(manager.saveArticle(makeArticle("A", "1")));
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Could not write saved articles, error: ")));
    EXPECT_THAT(titles(manager.savedArticles), ElementsAre("A"));
}

TEST_F(SavedArticlesManagerTest, HasTheNamesOfItsNotices) {
    EXPECT_EQ(SavedArticlesManager::didSaveArticleNotification, "ArticlesManagerDidSaveArticleNotification");
    EXPECT_EQ(SavedArticlesManager::didUnsaveArticleNotification, "ArticlesManagerDidUnsaveArticleNotification");
}

} // namespace
} // namespace brindle
