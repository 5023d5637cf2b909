#include "Brindle/opml/FeedsOPMLReader.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/opml/OPMLFixture.hpp"
#include "tests/support/MainLoop.hpp"

namespace brindle {

namespace {

std::string feed(const std::string& title) {
    return "<outline text='" + title + "' xmlUrl='http://a.test/" + title + "'/>";
}

std::string group(const std::string& title, const std::string& content) {
    return "<outline text='" + title + "'>" + content + "</outline>";
}

const FeedItem& itemAt(const std::vector<std::shared_ptr<Feed>>& feeds, std::size_t index) {
    EXPECT_EQ(feeds.at(index)->kind, Feed::Kind::item);
    return static_cast<const FeedItem&>(*feeds.at(index));
}

} // namespace

class FeedsOPMLReaderTest : public OPMLTest {};

TEST_F(FeedsOPMLReaderTest, MakesAFeedWithTheUsualSettings) {
    const Feeds feeds = read({write("a.opml", opml("<outline title='A' text='B' xmlUrl='http://a.test/?a=1&amp;b=2'/>"))});
    ASSERT_EQ(feeds.size(), 1U);
    const FeedItem& item = itemAt(feeds, 0);
    EXPECT_EQ(item.name(), "A");
    EXPECT_EQ(item.url().absoluteString(), "http://a.test/?a=1&b=2");
    EXPECT_EQ(item.updateRate, 30);
    EXPECT_EQ(item.username, "");
    EXPECT_EQ(item.password, "");
}

TEST_F(FeedsOPMLReaderTest, StartsNothingAndAttachesNoDelegate) {
    const Feeds feeds = read({write("a.opml", opml(feed("A")))});
    EXPECT_FALSE(itemAt(feeds, 0).hasTimer());
    EXPECT_FALSE(itemAt(feeds, 0).session().isQueued());
    EXPECT_EQ(itemAt(feeds, 0).delegate.lock(), nullptr);
}

TEST_F(FeedsOPMLReaderTest, CompletesOnTheMainThread) {
    bool isMain = false;
    bool isDone = false;
    FeedsOPMLReader::make(environment)->read({write("a.opml", opml(feed("A")))}, [&](const Feeds&) {
        isMain = RunLoop::main().isCurrent();
        isDone = true;
    });
    EXPECT_TRUE(runMainLoop([&] { return isDone; }));
    EXPECT_TRUE(isMain);
}

TEST_F(FeedsOPMLReaderTest, ReadsTheFilesOffTheMainThread) {
    bool isMain = true;
    const auto reader = FeedsOPMLReader::make(environment, [&](const auto&) -> tl::expected<std::string, std::string> {
        isMain = RunLoop::main().isCurrent();
        return opml(feed("A"));
    });
    EXPECT_EQ(outline(readWith(*reader, {"any"})), "A");
    EXPECT_FALSE(isMain);
}

TEST_F(FeedsOPMLReaderTest, IsHeldByItsWorkAndNoLonger) {
    bool isDone = false;
    std::weak_ptr<FeedsOPMLReader> weak;
    {
        const auto reader = FeedsOPMLReader::make(environment);
        weak = reader;
        reader->read({write("a.opml", opml(feed("A")))}, [&](const Feeds&) { isDone = !weak.expired(); });
    }
    EXPECT_TRUE(runMainLoop([&] { return isDone; }));
    EXPECT_TRUE(weak.expired());
}

TEST_F(FeedsOPMLReaderTest, CompletesWithNothingWhereNoFileIsGiven) {
    EXPECT_TRUE(read({}).empty());
}

TEST_F(FeedsOPMLReaderTest, PassesOverAFileThatCanNotBeReadInSilence) {
    const Feeds feeds = read({folder / "none.opml", folder.path(), write("a.opml", opml(feed("A")))});
    EXPECT_EQ(outline(feeds), "A");
    EXPECT_EQ(lines, std::vector<std::string>{"Removing FeedGroup "});
    ASSERT_EQ(failures.size(), 2U);
    EXPECT_EQ(failures[0].file, folder / "none.opml");
    EXPECT_FALSE(failures[0].wasRead);
    EXPECT_NE(failures[0].message.find("No such file"), std::string::npos) << failures[0].message;
    EXPECT_FALSE(failures[1].wasRead);
}

TEST_F(FeedsOPMLReaderTest, PrintsAnErrorOfTheXMLAndKeepsWhatCameBefore) {
    EXPECT_EQ(outlineOf(feed("A") + "</x>" + feed("B")), "A");
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(failures[0].wasRead);
    EXPECT_EQ(failures[0].file, folder / "one.opml");
    EXPECT_FALSE(failures[0].message.empty());
    EXPECT_EQ(lines.front(), "Parsing of OPML file failed: " + failures[0].message);
}

TEST_F(FeedsOPMLReaderTest, PrintsAnErrorForAnEmptyFile) {
    EXPECT_TRUE(read({write("empty.opml", "")}).empty());
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_EQ(lines.front(), "Parsing of OPML file failed: " + failures[0].message);
}

TEST_F(FeedsOPMLReaderTest, PrintsNothingForADocumentWithoutOutlines) {
    EXPECT_TRUE(read({write("a.xml", "<rss><channel/></rss>"), write("b.opml", opml(""))}).empty());
    EXPECT_TRUE(failures.empty());
    EXPECT_EQ(lines, std::vector<std::string>{"Removing FeedGroup "});
}

TEST_F(FeedsOPMLReaderTest, GathersFilesInReadingOrder) {
    const auto a = write("a.opml", opml(feed("A")));
    const auto b = write("b.opml", opml(group("G", "") + feed("B")));
    EXPECT_EQ(outline(read({b, a, b})), "G() B A G() B");
}

TEST_F(FeedsOPMLReaderTest, ReadsThousandsOfFilesOneAfterAnother) {
    const auto a = write("a.opml", opml(feed("A")));
    EXPECT_EQ(read(std::vector<std::filesystem::path>(20'000, a)).size(), 20'000U);
}

TEST_F(FeedsOPMLReaderTest, IgnoresWhatIsOutsideTheBody) {
    EXPECT_EQ(outline(read({write("a.opml", "<opml>" + feed("A") + "<head>" + group("G", feed("B")) + "</head><body>" + feed("C") +
                                                "</body>" + feed("D") + group("H", "") + "</opml>")})),
        "C");
}

TEST_F(FeedsOPMLReaderTest, IgnoresOtherElementsInsideTheBodyButNotWhatIsInThem) {
    EXPECT_EQ(outlineOf("<x text='X' xmlUrl='http://a.test/'/><y>" + feed("A") + "</y>"), "A");
}

TEST_F(FeedsOPMLReaderTest, TheEndOfABodyInsideTheBodyEndsIt) {
    EXPECT_EQ(outlineOf(feed("A") + "<body>" + feed("B") + "</body>" + feed("C")), "A B");
}

TEST_F(FeedsOPMLReaderTest, TakesElementNamesInAnyCase) {
    EXPECT_EQ(outline(read({write("a.opml",
                  "<OPML><BODY><OUTLINE text='G'></OUTLINE><Outline text='A' xmlUrl='http://a.test/'/></BODY>" + feed("B") + "</OPML>")})),
        "G() A");
}

TEST_F(FeedsOPMLReaderTest, TakesElementNamesWithTheirPrefixes) {
    EXPECT_EQ(outlineOf("<x:outline xmlns:x='urn:x' text='X'/>" + feed("A")), "A");
}

TEST_F(FeedsOPMLReaderTest, AnXMLURLAloneMakesAFeed) {
    EXPECT_EQ(outlineOf("<outline xmlUrl='http://a.test/' text='A'/>"), "A");
}

TEST_F(FeedsOPMLReaderTest, AnHTMLURLAloneIsAFeedThatIsNotAdded) {
    EXPECT_EQ(outlineOf("<outline text='A' htmlUrl='http://a.test/'/>"), "");
}

TEST_F(FeedsOPMLReaderTest, TheTypeAloneIsAFeedThatIsNotAdded) {
    EXPECT_EQ(outlineOf("<outline text='A' type='rss'/>"), "");
}

TEST_F(FeedsOPMLReaderTest, TheTypeCountsInSmallLettersOnly) {
    EXPECT_EQ(outlineOf("<outline text='A' type='RSS'/><outline text='B' TYPE='rss'/><outline text='C' type=' rss'/>"), "A() B() C()");
}

TEST_F(FeedsOPMLReaderTest, AttributeNamesAreComparedByCase) {
    EXPECT_EQ(outlineOf("<outline text='A' xmlurl='http://a.test/'/><outline TEXT='B' xmlUrl='http://a.test/'/>"), "A() ?");
}

TEST_F(FeedsOPMLReaderTest, AnAddressThatIsNoURLIsPassedOver) {
    EXPECT_EQ(outlineOf("<outline text='A' xmlUrl=''/><outline text='B' xmlUrl='http://a.test/a b'/>"
                        "<outline text='C' xmlUrl='http://a.test/\xC3\xA9'/><outline text='D' xmlUrl='http://a.test/%zz'/>" +
                        feed("E")),
        "E");
}

TEST_F(FeedsOPMLReaderTest, AnOutlineWithTextAloneIsAnEmptyGroup) {
    EXPECT_EQ(outlineOf("<outline text='A'/>"), "A()");
}

TEST_F(FeedsOPMLReaderTest, AnOutlineWithTitleAndTextAndContentIsAGroup) {
    EXPECT_EQ(outlineOf("<outline title='A' text='B'>" + feed("C") + "</outline>"), "A(C)");
}

TEST_F(FeedsOPMLReaderTest, TheTitleIsTheTextWhereItIsAbsentOrEmpty) {
    EXPECT_EQ(outlineOf("<outline title='A' text='B'/><outline text='C'/><outline title='' text='D'/><outline title=' ' text='E'/>"),
        "A() C() D()  ()");
}

TEST_F(FeedsOPMLReaderTest, AFeedWithoutATitleHasAnEmptyName) {
    EXPECT_EQ(outlineOf("<outline xmlUrl='http://a.test/'/><outline title='' xmlUrl='http://b.test/'/>"), "? ?");
}

TEST_F(FeedsOPMLReaderTest, OfAGroupWithTwoFeedsTheSecondStandsBehindIt) {
    EXPECT_EQ(outlineOf(group("G", feed("A") + feed("B")) + feed("C")), "G(A) B C");
}

TEST_F(FeedsOPMLReaderTest, AFeedThatIsNotSelfClosedEndsItsGroupAsWell) {
    EXPECT_EQ(outlineOf(group("G", "<outline text='A' xmlUrl='http://a.test/'></outline>" + feed("B"))), "G(A) B");
}

TEST_F(FeedsOPMLReaderTest, AFeedThatIsNotAddedEndsItsGroupAsWell) {
    EXPECT_EQ(outlineOf(group("G", "<outline type='rss'/>" + feed("A"))), "G() A");
}

TEST_F(FeedsOPMLReaderTest, AnEmptyGroupEndsWithItsOwnEnd) {
    EXPECT_EQ(outlineOf(group("G", "") + feed("A") + group("H", "\n") + feed("B")), "G() A H() B");
}

TEST_F(FeedsOPMLReaderTest, TheTrueEndOfAGroupIsPassedOver) {
    EXPECT_EQ(outlineOf(group("G", group("H", feed("A") + feed("B")) + feed("C")) + feed("D")), "G(H(A) B C D)");
}

TEST_F(FeedsOPMLReaderTest, AGroupAfterAPassedOverEndBeginsALevelTooDeep) {
    EXPECT_EQ(outlineOf(group("G", group("H", "") + group("I", "")) + group("J", feed("A")) + feed("B")), "G(H() I() J(A) B)");
}

TEST_F(FeedsOPMLReaderTest, EntriesHaveTheirGroupAsParentAndTheTopLevelTheReaders) {
    const auto reader = FeedsOPMLReader::make(environment);
    const Feeds feeds = readWith(*reader, {write("a.opml", opml(group("G", feed("A"))))});
    const auto& made = static_cast<const FeedGroup&>(*feeds.at(0));
    EXPECT_EQ(made.feeds().at(0)->parent.lock(), feeds[0]);
    ASSERT_NE(feeds[0]->parent.lock(), nullptr);
    EXPECT_EQ(feeds[0]->parent.lock()->name(), "");
}

TEST_F(FeedsOPMLReaderTest, TheTopLevelHasNoParentOnceTheReaderIsGone) {
    const Feeds feeds = read({write("a.opml", opml(group("G", "") + feed("A")))});
    EXPECT_EQ(feeds.at(0)->parent.lock(), nullptr);
    EXPECT_EQ(feeds.at(1)->parent.lock(), nullptr);
}

TEST_F(FeedsOPMLReaderTest, AFileThatBrokeOffLeavesItsGroupOpenForTheNextFile) {
    const auto broken = write("broken.opml", "<opml><body><outline text='G'>");
    EXPECT_EQ(outline(read({broken, write("a.opml", opml(feed("A") + feed("B")))})), "G(A) B");
}

TEST_F(FeedsOPMLReaderTest, AFileThatBrokeOffLeavesItsBodyOpenForTheNextFile) {
    const auto broken = write("broken.opml", "<opml><body>" + feed("A") + "<");
    const auto next = write("next.opml", "<opml><head>" + feed("B") + "</head></opml>");
    EXPECT_EQ(outline(read({broken, next})), "A B");
}

TEST_F(FeedsOPMLReaderTest, AnotherReadBeginsWithNothing) {
    const auto reader = FeedsOPMLReader::make(environment);
    const Feeds first = readWith(*reader, {write("a.opml", opml(feed("A"))), folder / "none"});
    EXPECT_EQ(reader->failures().size(), 1U);
    EXPECT_EQ(outline(readWith(*reader, {write("b.opml", opml(feed("B")))})), "B");
    EXPECT_TRUE(reader->failures().empty());
    EXPECT_EQ(outline(first), "A");
    EXPECT_EQ(first[0]->parent.lock(), nullptr);
}

TEST_F(FeedsOPMLReaderTest, AnotherReadGoesOnInTheGroupThatWasOpen) {
    const auto reader = FeedsOPMLReader::make(environment);
    const Feeds first = readWith(*reader, {write("broken.opml", "<opml><body><outline text='G'>")});
    EXPECT_EQ(outline(readWith(*reader, {write("a.opml", opml(feed("A") + feed("B")))})), "B");
    EXPECT_EQ(outline(first), "G(A)");
}

TEST_F(FeedsOPMLReaderTest, ACompletionMayReadAgain) {
    const auto reader = FeedsOPMLReader::make(environment);
    const auto a = write("a.opml", opml(feed("A")));
    const auto b = write("b.opml", opml(feed("B")));
    std::string seen;
    bool isDone = false;
    reader->read({a}, [&](const Feeds& first) {
        reader->read({b}, [&](const Feeds& second) {
            seen += outline(second);
            isDone = true;
        });
        seen += outline(first);
    });
    EXPECT_TRUE(runMainLoop([&] { return isDone; }));
    EXPECT_EQ(seen, "AB");
}

TEST_F(FeedsOPMLReaderTest, AReferenceThatIsNotDeclaredIsAnError) {
    EXPECT_EQ(outlineOf(feed("A") + "<outline text='&eacute;' xmlUrl='http://a.test/'/>" + feed("B")), "A");
    EXPECT_EQ(failures.size(), 1U);
}

TEST_F(FeedsOPMLReaderTest, ADeclaredReferenceIsResolved) {
    const auto file = write("a.opml", "<!DOCTYPE opml [<!ENTITY e '\xC3\xA9'>]><opml><body><outline text='&e;'/></body></opml>");
    EXPECT_EQ(outline(read({file})), "\xC3\xA9()");
}

TEST_F(FeedsOPMLReaderTest, TakesUTF8WhateverIsDeclared) {
    const auto file = write("a.opml", "<?xml version='1.0' encoding='iso-8859-1'?><opml><body><outline text='\xC3\xA9'/></body></opml>");
    EXPECT_EQ(outline(read({file})), "\xC3\xA9()");
}

TEST_F(FeedsOPMLReaderTest, TakesOtherBytesByTheirDeclarationElseAsLatin1) {
    const std::string rest = "<opml><body><outline text='\xCF\xF0'/></body></opml>";
    const auto declared = write("a.opml", "<?xml version='1.0' encoding='windows-1251'?>" + rest);
    const auto undeclared = write("b.opml", rest);
    EXPECT_EQ(outline(read({declared, undeclared})), "\xD0\x9F\xD1\x80() \xC3\x8F\xC3\xB0()");
}

} // namespace brindle
