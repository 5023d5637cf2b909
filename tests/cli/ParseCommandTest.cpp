#include "tests/cli/CommandLineRun.hpp"

namespace brindle {

namespace {

constexpr std::string_view rss = R"(<rss version="2.0"><channel><title>A &amp; B</title><link>http://a.test/</link>
<item><title>One</title><link>http://a.test/1</link><pubDate>Wed, 01 Jan 2020 00:00:00 GMT</pubDate></item>
<item><title>Two</title><link>http://a.test/2</link><pubDate>Wed, 01 Jan 2020 00:00:00 GMT</pubDate></item></channel></rss>)";

/// The same with later dates: a read entry stays read only where its date has moved forward.
std::string laterRSS() {
    std::string text(rss);
    for (std::size_t place = 0; (place = text.find("2020", place)) != std::string::npos;)
        text.replace(place, 4, "2021").replace(place - 12, 3, "Fri");
    return text;
}

constexpr std::string_view golden = R"([
  {
    "file": "-",
    "encoding": "utf-8",
    "detected": "atom",
    "handlerCalls": [
      "success"
    ],
    "outcome": "finished",
    "feed": {
      "kind": "atom",
      "identifier": "",
      "title": "T",
      "subtitle": "",
      "languageCode": "en-US",
      "copyright": "",
      "datePublished": "2020-02-03T04:05:06.789Z",
      "dateUpdated": "2020-02-03T04:05:06.789Z",
      "version": "",
      "primaryURL": null,
      "links": [],
      "categories": [],
      "entries": [
        {
          "identifier": "",
          "title": "É",
          "dateCreated": "2020-02-03T04:05:06.789Z",
          "dateUpdated": "2020-02-03T04:05:06.789Z",
          "content": null,
          "summary": null,
          "summaryIsContent": false,
          "copyright": "",
          "categories": [],
          "links": [],
          "enclosures": [],
          "state": "unread",
          "effectiveIdentifier": "É",
          "preferredLinkURL": null
        }
      ]
    }
  }
]
)";

} // namespace

class ParseCommandTest : public CommandLineTest {};

TEST_F(ParseCommandTest, PrintsADocumentAsJSON) {
    input = "<feed><title>T</title><entry><title>\u00c9</title></entry></feed>";
    const CommandLineRun result = run({"--json", "parse", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, golden);
    EXPECT_EQ(result.errors, "");
}

TEST_F(ParseCommandTest, NamesTheEncodingThatDecodedTheDocument) {
    const auto json = runJSON({"parse", file("a.xml", "<feed><title>caf\xe9</title></feed>")});
    EXPECT_EQ(json[0]["encoding"], "iso-8859-1");
    EXPECT_EQ(json[0]["feed"]["title"], "caf\u00e9");
}

TEST_F(ParseCommandTest, ReadsDocumentsIntoOneFeedThatRemembersWhatWasRead) {
    const auto json = runJSON({"parse", "--mark-read", "http://a.test/2", file("a.xml", rss), file("b.xml", laterRSS())});
    ASSERT_EQ(json.size(), 2U);
    EXPECT_EQ(json[0]["feed"]["entries"][1]["state"], "unread");
    EXPECT_EQ(json[1]["feed"]["entries"][0]["state"], "unread");
    EXPECT_EQ(json[1]["feed"]["entries"][1]["state"], "read");
}

TEST_F(ParseCommandTest, MarksSeveralEntries) {
    const auto json =
        runJSON({"parse", "--mark-read", "http://a.test/1", "--mark-read=http://a.test/2", file("a.xml", rss), file("b.xml", laterRSS())});
    EXPECT_EQ(json[1]["feed"]["entries"][0]["state"], "read");
    EXPECT_EQ(json[1]["feed"]["entries"][1]["state"], "read");
}

TEST_F(ParseCommandTest, KeepsAFeedsKindOnceItIsSettled) {
    const auto json =
        runJSON({"parse", file("a.xml", "<html><body/></html>"), file("b.xml", rss), file("c.xml", "<feed><title>C</title></feed>")});
    EXPECT_EQ(json[0]["feed"]["kind"], "html");
    EXPECT_EQ(json[1]["feed"]["kind"], "rss");
    EXPECT_EQ(json[2]["detected"], "atom");
    EXPECT_EQ(json[2]["feed"]["kind"], "rss");
}

TEST_F(ParseCommandTest, FailsByTheLastDocumentAndPrintsAllTheSame) {
    const std::string good = file("a.xml", rss);
    const std::string bad = file("b.xml", "<opml/>");
    EXPECT_EQ(runJSON({"parse", file("c.xml", "<html/>"), good}, 0).size(), 2U);
    const auto json = runJSON({"parse", good, bad}, 1);
    EXPECT_EQ(json[1]["detected"], "opml");
    EXPECT_EQ(json[1]["outcome"], "invalidFeed");
    EXPECT_TRUE(json[1]["handlerCalls"].empty());
    EXPECT_EQ(json[1]["feed"]["title"], "A & B");
}

TEST_F(ParseCommandTest, TellsAPageAnUnknownDocumentAndNoDocumentApart) {
    const auto page = runJSON({"parse", file("a.xml", "<html/>")}, 1)[0];
    EXPECT_EQ(page["outcome"], "html");
    EXPECT_EQ(page["detected"], "html");
    EXPECT_TRUE(page["handlerCalls"].empty());
    const auto unknown = runJSON({"parse", file("b.xml", "plain")}, 1)[0];
    EXPECT_EQ(unknown["outcome"], "invalidFeed");
    EXPECT_EQ(unknown["detected"], "unknown");
    const auto empty = runJSON({"parse", file("c.xml", "")}, 1)[0];
    EXPECT_EQ(empty["outcome"], "noData");
    EXPECT_TRUE(empty["detected"].is_null());
    EXPECT_TRUE(empty["handlerCalls"].empty());
    EXPECT_EQ(empty["feed"]["kind"], "unknown");
}

TEST_F(ParseCommandTest, ListsEachCallOfTheParsersCompletion) {
    const auto json = runJSON({"parse", file("a.json", "[1]")}, 1)[0];
    EXPECT_EQ(json["detected"], "json");
    EXPECT_EQ(json["handlerCalls"], nlohmann::ordered_json({"invalidFeed"}));
    EXPECT_EQ(json["outcome"], "invalidFeed");
}

TEST_F(ParseCommandTest, GivesTheTextAsItIsToTheParserThatIsNamed) {
    const auto json = runJSON({"parse", "--as", "rss", file("a.xml", rss)})[0];
    EXPECT_TRUE(json["detected"].is_null());
    EXPECT_EQ(json["feed"]["kind"], "rss");
    EXPECT_EQ(json["feed"]["entries"].size(), 2U);
    const auto broken = runJSON({"parse", "--as", "rss", file("b.xml", "<rss><channel>")}, 1)[0];
    EXPECT_EQ(broken["outcome"], "invalidFeed");
    EXPECT_EQ(broken["handlerCalls"], nlohmann::ordered_json::array({"parseError"}));
    for (const char* kind : {"rdf", "atom"})
        EXPECT_EQ(runJSON({"parse", "--as", kind, file("a.xml", rss)})[0]["feed"]["kind"], kind);
}

TEST_F(ParseCommandTest, CallsAnEmptyTextWithANamedParserAnInvalidFeed) {
    const std::string empty = file("a.txt", "");
    const auto markup = runJSON({"parse", "--as", "rss", empty}, 1)[0];
    EXPECT_EQ(markup["outcome"], "invalidFeed");
    EXPECT_EQ(markup["handlerCalls"], nlohmann::ordered_json::array({"emptyString", "parseError"}));
    const auto json = runJSON({"parse", "--as", "json", empty}, 1)[0];
    EXPECT_EQ(json["outcome"], "invalidFeed");
    EXPECT_EQ(json["handlerCalls"], nlohmann::ordered_json::array({"emptyString", "invalidFeed"}));
}

TEST_F(ParseCommandTest, GivesAReadableDocumentToTheNamedJSONParser) {
    const auto json = runJSON({"parse", "--as", "json", file("a.json", R"({"title":"T","items":[{"id":"1"}]})")})[0];
    EXPECT_TRUE(json["detected"].is_null());
    EXPECT_EQ(json["handlerCalls"], nlohmann::ordered_json::array({"success"}));
    EXPECT_EQ(json["outcome"], "finished");
    EXPECT_EQ(json["feed"]["kind"], "json");
    EXPECT_EQ(json["feed"]["title"], "T");
    EXPECT_EQ(json["feed"]["entries"].size(), 1U);
}

TEST_F(ParseCommandTest, PrintsWhatItReadBeforeAFileThatCannotBeRead) {
    const std::string good = file("a.xml", rss);
    const std::string missing = folder() / "missing.xml";
    const std::vector<std::string> message = {"brindle-cli: Could not read " + missing + ": No such file or directory"};
    for (const std::string format : {"--locale=en_US", "--json"}) {
        const std::string alone = run({format, "parse", good}).output;
        const CommandLineRun result = run({format, "parse", good, missing, good});
        EXPECT_EQ(result.status, 1) << format;
        EXPECT_NE(result.output, "") << format;
        EXPECT_EQ(result.output, alone) << format;
        EXPECT_EQ(result.messages(), message) << format;
        expectError({format, "parse", missing, good}, 1, "Could not read " + missing);
    }
}

TEST_F(ParseCommandTest, RefusesAKindThatHasNoParser) {
    expectError({"parse", "--as", "opml", file("a.xml", rss)}, 2, "--as takes rss, rdf, atom or json");
    expectError({"parse"}, 2, "missing argument");
}

TEST_F(ParseCommandTest, PrintsATableForPeople) {
    const std::string document = file("a.xml", "<feed><title>T\nU</title><entry><title>E\x1b[1m</title></entry></feed>");
    const CommandLineRun result = run({"parse", document});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with(document + ":"));
    EXPECT_NE(result.output.find("  kind"), std::string::npos);
    EXPECT_EQ(result.output.find('\x1b'), std::string::npos);
}

} // namespace brindle
