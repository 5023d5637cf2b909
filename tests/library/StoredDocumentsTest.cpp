#include "Brindle/library/FeedItemArticle.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

/// What a program that runs for days keeps in memory of the documents that it has read.
class StoredDocumentsTest : public LibraryTest {
protected:
    StoredDocumentsTest() { environment.keepsDocumentsCompactly = true; }

    static std::string longText(const std::string& word) {
        std::string text;
        for (int i = 0; i < 200; ++i)
            text += word + " &lt;b&gt;\xC3\xA9\n";
        return text;
    }

    static std::string document(const std::vector<std::string>& texts) {
        std::string result = "<rss><channel><title>Feed</title>";
        for (const std::string& text : texts)
            result += "<item><title>T</title><description>" + text + "</description></item>";
        return result + "</channel></rss>";
    }

    static std::vector<std::string> contents(const FeedItem& item) {
        std::vector<std::string> result;
        for (const auto& article : item.articles())
            result.push_back(article->entry->content()->content());
        return result;
    }

    /// The same document as read by a program that keeps everything.
    std::vector<std::string> expectedContents(const std::string& text) {
        environment.keepsDocumentsCompactly = false;
        const auto item = makeItem("Keeps");
        parse(*item, text);
        environment.keepsDocumentsCompactly = true;
        return contents(*item);
    }
};

TEST_F(StoredDocumentsTest, GivesEveryTextAsItWasRead) {
    const std::string text = document({longText("one"), "short", longText("two"), ""});
    const auto item = makeItem();
    parse(*item, text);
    ASSERT_EQ(item->articles().size(), 4U);
    EXPECT_EQ(contents(*item), expectedContents(text));
    EXPECT_NE(contents(*item)[0].find("one <b>\xC3\xA9"), std::string::npos);
}

TEST_F(StoredDocumentsTest, GivesBothTextsOfAnAtomEntry) {
    const std::string text = "<feed xmlns=\"http://www.w3.org/2005/Atom\"><title>F</title><entry><title>T</title><summary>" +
                             longText("sum") + "</summary><content type=\"html\">" + longText("con") + "</content></entry></feed>";
    const auto item = makeItem();
    parse(*item, text);
    const SyndicatedEntry& entry = *item->articles().at(0)->entry;
    EXPECT_NE(entry.content()->content().find("con"), std::string::npos);
    EXPECT_NE(entry.summary->content().find("sum"), std::string::npos);
}

TEST_F(StoredDocumentsTest, KeepsTheTextsOfAnEarlierDocumentForWhoHoldsItsArticles) {
    const auto manager = makeManager();
    const auto item = makeItem();
    manager->addFeed(item, 0);
    parse(*item, document({longText("old")}));
    manager->save();
    const auto held = item->articles().at(0);
    parse(*item, document({longText("new")}));
    manager->save();
    EXPECT_NE(held->entry->content()->content().find("old"), std::string::npos);
    EXPECT_NE(contents(*item)[0].find("new"), std::string::npos);
}

TEST_F(StoredDocumentsTest, LeavesADocumentInItsFileOnceItIsSaved) {
    const auto manager = makeManager();
    const auto item = makeItem();
    manager->addFeed(item, 0);
    parse(*item, document({longText("one")}));
    const std::string data = item->data.bytes();
    manager->save();
    const std::filesystem::path path = folder / "Data" / item->uuid.uuidString();
    EXPECT_EQ(item->data.file(), path);
    EXPECT_EQ(item->data.bytes(), data);
    EXPECT_EQ(file("Data/" + item->uuid.uuidString()), data);
    // The same document once more: the file has it.
    parse(*item, document({longText("one")}));
    EXPECT_EQ(item->data.file(), path);
    parse(*item, document({longText("two")}));
    EXPECT_EQ(item->data.file(), "");
}

TEST_F(StoredDocumentsTest, ReadsNoDocumentWhenTheLibraryIsLoaded) {
    const auto item = makeItem();
    {
        const auto manager = makeManager();
        manager->addFeed(item, 0);
        item->data = "document";
        manager->save();
    }
    const auto manager = loadedManager();
    const auto loaded = FeedsManager::items(manager->feeds).at(0);
    EXPECT_EQ(loaded->data.file(), folder / "Data" / item->uuid.uuidString());
    EXPECT_EQ(loaded->data, "document");
}

TEST_F(StoredDocumentsTest, KeepsADocumentInMemoryThatCouldNotBeStored) {
    const auto manager = makeManager();
    const auto item = makeItem();
    manager->addFeed(item, 0);
    item->data = "document";
    // A folder in the way of the file.
    std::filesystem::create_directories(folder / "Data" / item->uuid.uuidString());
    manager->save();
    EXPECT_EQ(item->data.file(), "");
    EXPECT_EQ(item->data, "document");
}

TEST_F(StoredDocumentsTest, KeepsTheTextsWhenTheCachesAreReset) {
    const auto manager = makeManager();
    const auto item = makeItem();
    manager->addFeed(item, 0);
    parse(*item, document({longText("one")}));
    manager->save();
    manager->resetCaches();
    EXPECT_FALSE(exists("Data"));
    EXPECT_FALSE(item->data.bytes().empty());
    EXPECT_NE(contents(*item)[0].find("one"), std::string::npos);
}

} // namespace
} // namespace brindle
