#include "Brindle/library/FeedItemArticle.hpp"

#include "foundation/KeyedArchiver.hpp"
#include "foundation/KeyedUnarchiver.hpp"
#include "tests/fakes/DecoderFake.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedItemArticleTest : public LibraryTest {
protected:
    std::shared_ptr<SyndicatedEntry> entry = std::make_shared<SyndicatedEntry>(clock->now());

    void addLink(const std::string& address, SyndicatedLinkRelation relation = SyndicatedLinkRelation::alternate) {
        entry->links.emplace_back();
        entry->links.back().url = URL::make(address);
        entry->links.back().relation = relation;
    }

    /// The article of `entry`, archived and read back.
    std::shared_ptr<FeedItemArticle> readBack(const std::weak_ptr<FeedItem>& item = {}) {
        const auto bytes = KeyedArchiver::archivedData(std::make_shared<FeedItemArticle>(entry, item));
        KeyedUnarchiver unarchiver;
        unarchiver.setAllowsDictionaries(true);
        unarchiver.setClass("FeedItemArticle", [this](const Decoder& decoder) { return FeedItemArticle::decode(decoder, clock->now()); });
        unarchiver.setClass("FeedItem", [this](const Decoder& decoder) { return FeedItem::decode(decoder, environment); });
        return std::dynamic_pointer_cast<FeedItemArticle>(unarchiver.unarchive(bytes.value()).value());
    }
};

TEST_F(FeedItemArticleTest, HasTheKeyOfItsTitleAndItsPreferredLink) {
    entry->title = "Title & more";
    addLink("http://a.invalid/self", SyndicatedLinkRelation::self);
    addLink("http://a.invalid/1");
    EXPECT_EQ(FeedItemArticle(entry, {}).articleStateKey(), "Title & more&http://a.invalid/1");
}

TEST_F(FeedItemArticleTest, HasAnAmpersandForKeyWithoutTitleAndLink) {
    EXPECT_EQ(FeedItemArticle(entry, {}).articleStateKey(), "&");
}

TEST_F(FeedItemArticleTest, WritesItsFieldsInOrder) {
    entry->identifier = "id-1";
    entry->title = "Title";
    entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw, "<p>Text</p>"));
    addLink("http://a.invalid/1", SyndicatedLinkRelation::via);
    entry->enclosures.push_back({url("http://a.invalid/1.mp3"), 7, SyndicatedEnclosure::Kind::audio});
    const auto item = makeItem();
    CoderFake coder;
    const FeedItemArticle article(entry, item);
    article.encode(coder);
    EXPECT_THAT(coder.keys, ElementsAre("id", "title", "contentRaw", "contentMIME", "links", "enclosures", "parentFeedItem"));
    EXPECT_EQ(coder.fields.texts["contentRaw"], "<p>Text</p>");
    EXPECT_EQ(coder.fields.integers["contentMIME"], 1);
    EXPECT_EQ(coder.fields.dictionaries["links"],
        (std::vector<CodedDictionary>{{{"linkURL", "http://a.invalid/1"}, {"linkRelation", std::int64_t{4}}}}));
    EXPECT_EQ(coder.fields.dictionaries["enclosures"], (std::vector<CodedDictionary>{{{"enclosureURL", "http://a.invalid/1.mp3"},
                                                           {"enclosureLength", std::int64_t{7}}, {"enclosureType", std::int64_t{1}}}}));
    EXPECT_EQ(coder.fields.objects["parentFeedItem"], item);
    EXPECT_THAT(article.archiveClasses(), ElementsAre("FeedItemArticle"));
}

TEST_F(FeedItemArticleTest, ComesBackWithItsTextsLinksAndEnclosures) {
    entry->identifier = "id-1";
    entry->title = "Títle";
    entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw));
    entry->content()->setContent("a &amp; b");
    addLink("http://a.invalid/1", SyndicatedLinkRelation::via);
    addLink("http://a.invalid/2");
    entry->enclosures.push_back({url("http://a.invalid/1.mp4"), -1, SyndicatedEnclosure::Kind::video});
    const auto article = readBack();
    ASSERT_TRUE(article);
    EXPECT_EQ(article->entry->identifier, "id-1");
    EXPECT_EQ(article->entry->title, "Títle");
    EXPECT_EQ(article->entry->content()->content(), "a &amp; b");
    EXPECT_EQ(article->entry->content()->type(), SyndicatedContent::MIMEType::raw);
    EXPECT_EQ(article->entry->links, entry->links);
    ASSERT_EQ(article->entry->enclosures.size(), 1U);
    EXPECT_EQ(article->entry->enclosures[0].url, url("http://a.invalid/1.mp4"));
    EXPECT_EQ(article->entry->enclosures[0].length, -1);
    EXPECT_EQ(article->entry->enclosures[0].kind, SyndicatedEnclosure::Kind::video);
}

TEST_F(FeedItemArticleTest, ComesBackWithTheDefaultsOfWhatIsNotStored) {
    entry->setIsRead(true);
    entry->copyright = "(c)";
    entry->dateCreated = entry->dateUpdated = Date();
    entry->categories.emplace_back();
    entry->summary = std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::plain, "Summary");
    const auto article = readBack();
    ASSERT_TRUE(article);
    EXPECT_FALSE(article->entry->isRead());
    EXPECT_EQ(article->entry->copyright, "");
    EXPECT_EQ(article->entry->dateCreated, clock->now());
    EXPECT_EQ(article->entry->dateUpdated, clock->now());
    EXPECT_THAT(article->entry->categories, IsEmpty());
    EXPECT_EQ(article->entry->summary, nullptr);
}

TEST_F(FeedItemArticleTest, ComesBackWithAnEmptyPlainContentWhenItHadNone) {
    const auto article = readBack();
    ASSERT_TRUE(article);
    ASSERT_NE(article->entry->content(), nullptr);
    EXPECT_EQ(article->entry->content()->content(), "");
    EXPECT_EQ(article->entry->content()->type(), SyndicatedContent::MIMEType::plain);
}

TEST_F(FeedItemArticleTest, WritesNoContentKeysWithoutContent) {
    CoderFake coder;
    FeedItemArticle(entry, {}).encode(coder);
    EXPECT_THAT(coder.keys, ElementsAre("id", "title", "links", "enclosures"));
}

TEST_F(FeedItemArticleTest, DecodesNothingAsEmptyTexts) {
    const auto article = FeedItemArticle::decode(DecoderFake(), clock->now());
    EXPECT_EQ(article->entry->identifier, "");
    EXPECT_EQ(article->entry->title, "");
    EXPECT_THAT(article->entry->links, IsEmpty());
    EXPECT_THAT(article->entry->enclosures, IsEmpty());
    EXPECT_EQ(article->feedItem.lock(), nullptr);
}

TEST_F(FeedItemArticleTest, TakesOnlyTheTypeOneForMarkup) {
    for (const std::int64_t type : {-1, 0, 2}) {
        DecoderFake decoder;
        decoder.integers["contentMIME"] = type;
        EXPECT_EQ(FeedItemArticle::decode(decoder, clock->now())->entry->content()->type(), SyndicatedContent::MIMEType::plain) << type;
    }
}

TEST_F(FeedItemArticleTest, GivesALinkTheFirstRelationForAValueThatIsNone) {
    DecoderFake decoder;
    for (const std::int64_t relation : {5, 6, 7, -1})
        decoder.dictionaries["links"].push_back({{"linkRelation", relation}});
    std::vector<SyndicatedLinkRelation> relations;
    const auto article = FeedItemArticle::decode(decoder, clock->now());
    for (const SyndicatedLink& link : article->entry->links)
        relations.push_back(link.relation);
    EXPECT_THAT(relations, ElementsAre(SyndicatedLinkRelation::unknown, SyndicatedLinkRelation::alternate,
                               SyndicatedLinkRelation::alternate, SyndicatedLinkRelation::alternate));
}

TEST_F(FeedItemArticleTest, LeavesTheDefaultsOfALinkWhoseKeysAreMissingOrOfAnotherType) {
    DecoderFake decoder;
    decoder.dictionaries["links"] = {{}, {{"linkURL", std::int64_t{1}}, {"linkRelation", "via"}}, {{"linkURL", "not a url"}}};
    const auto links = FeedItemArticle::decode(decoder, clock->now())->entry->links;
    EXPECT_EQ(links, std::vector<SyndicatedLink>(3));
    EXPECT_FALSE(links[2].url);
}

TEST_F(FeedItemArticleTest, SkipsAnEnclosureThatLacksAnyOfItsKeysOrWhoseURLIsEmpty) {
    const std::pair<std::string, CodedValue> address{"enclosureURL", "http://a.invalid/"}, length{"enclosureLength", std::int64_t{1}},
        type{"enclosureType", std::int64_t{3}};
    DecoderFake decoder;
    decoder.dictionaries["enclosures"] = {{length, type}, {address, type}, {address, length}, {{"enclosureURL", ""}, length, type},
        {{"enclosureURL", std::int64_t{1}}, length, type}, {address, length, {"enclosureType", std::int64_t{4}}}, {address, length, type}};
    std::vector<SyndicatedEnclosure::Kind> kinds;
    const auto article = FeedItemArticle::decode(decoder, clock->now());
    for (const SyndicatedEnclosure& enclosure : article->entry->enclosures)
        kinds.push_back(enclosure.kind);
    EXPECT_THAT(kinds, ElementsAre(SyndicatedEnclosure::Kind::other, SyndicatedEnclosure::Kind::image));
}

TEST_F(FeedItemArticleTest, EndsTheProcessForAnEnclosureWhoseTextIsNoURL) {
    DecoderFake decoder;
    decoder.dictionaries["enclosures"] = {
        {{"enclosureURL", "not a url"}, {"enclosureLength", std::int64_t{1}}, {"enclosureType", std::int64_t{1}}}};
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH((removeFolder(), FeedItemArticle::decode(decoder, clock->now())), "Fatal error: .*not a url");
}

TEST_F(FeedItemArticleTest, HoldsItsDecodedFeedOnlyWeakly) {
    DecoderFake decoder;
    auto item = makeItem();
    decoder.objects["parentFeedItem"] = item;
    const auto article = FeedItemArticle::decode(decoder, clock->now());
    EXPECT_EQ(article->feedItem.lock(), item);
    const auto fromArchive = readBack(item);
    ASSERT_TRUE(fromArchive);
    EXPECT_EQ(fromArchive->feedItem.lock(), nullptr);
}

TEST_F(FeedItemArticleTest, IgnoresAParentThatIsNoFeedItem) {
    DecoderFake decoder;
    decoder.objects["parentFeedItem"] = std::make_shared<FeedItemArticle>(entry, std::weak_ptr<FeedItem>());
    EXPECT_EQ(FeedItemArticle::decode(decoder, clock->now())->feedItem.lock(), nullptr);
}

TEST_F(FeedItemArticleTest, IsWrittenWithoutAFeedThatIsGone) {
    const FeedItemArticle article(entry, makeItem());
    CoderFake coder;
    article.encode(coder);
    EXPECT_THAT(coder.keys, ElementsAre("id", "title", "links", "enclosures"));
}

} // namespace
} // namespace brindle
