#include "tests/cli/CommandLineRun.hpp"

namespace brindle {

class DocumentCommandsTest : public CommandLineTest {};

TEST_F(DocumentCommandsTest, DetectPrintsTheTextAfterDetection) {
    const CommandLineRun result = run({"--json", "detect", file("a.xml", "<Feed><b>x")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, R"({
  "encoding": "utf-8",
  "kind": "atom",
  "text": "\n<Feed>\n <b>\n  x\n </b>\n</Feed>"
}
)");
}

TEST_F(DocumentCommandsTest, DetectNamesEachKind) {
    const std::vector<std::pair<std::string, std::string>> documents = {{"<rss/>", "rss"}, {"<rdf:RDF/>", "rdf"}, {"<feed/>", "atom"},
        {"<html/>", "html"}, {"<opml/>", "opml"}, {"{}", "json"}, {"<x/>", "unknown"}};
    for (const auto& [document, kind] : documents)
        EXPECT_EQ(runJSON({"detect", file("a.xml", document)})["kind"], kind);
}

TEST_F(DocumentCommandsTest, DetectFindsNothingInAnEmptyDocument) {
    const auto json = runJSON({"detect", "-"});
    EXPECT_TRUE(json["kind"].is_null());
    EXPECT_EQ(json["text"], "");
}

TEST_F(DocumentCommandsTest, DetectPrintsFactsAndTextForPeople) {
    EXPECT_EQ(run({"detect", file("a.json", "{}")}).output, "encoding: utf-8\nkind: json\n\n{}\n");
}

TEST_F(DocumentCommandsTest, TreePrintsMarkup) {
    EXPECT_EQ(run({"tree", file("a.xml", "<x><title>t<y")}).output, "\n<x>\n <title>t</title>\n</x>\n");
}

TEST_F(DocumentCommandsTest, TreePrintsOneLineForEachNodeAlsoWithJSON) {
    const std::string document = file("a.xml", "<a z='1' y='2'>x<!--c--></a>");
    const std::string expected = "| <a>\n|   y=\"2\"\n|   z=\"1\"\n|   \"x\"\n|   <!-- c -->\n";
    EXPECT_EQ(run({"tree", "--format", "html5lib", document}).output, expected);
    EXPECT_EQ(run({"--json", "tree", "--format", "html5lib", document}).output, expected);
}

TEST_F(DocumentCommandsTest, TreeBuildsByTheRulesOfHTML) {
    const std::string document = file("a.html", "<!DOCTYPE html><TITLE>t</TITLE><p>x<p>y<br>");
    EXPECT_EQ(run({"tree", "--html", "--format", "html5lib", document}).output,
        "| <!DOCTYPE html>\n| <html>\n|   <head>\n|     <title>\n|       \"t\"\n|   <body>\n|     <p>\n|       \"x\"\n|     <p>\n"
        "|       \"y\"\n|       <br>\n");
    EXPECT_EQ(run({"tree", "--html", document}).output, "<!DOCTYPE html>\n<html>\n <head>\n  <title>t</title>\n </head>\n <body>\n  "
                                                        "<p>x</p>\n  <p>y\n   <br></p>\n </body>\n</html>\n");
}

TEST_F(DocumentCommandsTest, TreeBuildsTheContentOfAnElementOfHTML) {
    const std::string document = file("a.html", "<td>x<g/>");
    const auto dump = [&](const std::string& context) {
        return run({"tree", "--html", "--fragment", context, "--format", "html5lib", document}).output;
    };
    EXPECT_EQ(dump("div"), "| \"x\"\n| <g>\n");
    EXPECT_EQ(dump("tr"), "| <td>\n|   \"x\"\n|   <g>\n");
    EXPECT_EQ(dump("svg path"), "| <svg td>\n|   \"x\"\n|   <svg g>\n");
}

TEST_F(DocumentCommandsTest, TreeRefusesWhatItCannotBuild) {
    const std::string document = file("a.xml", "<a/>");
    expectError({"tree", "--fragment", "div", document}, 2, "--fragment needs --html");
    expectError({"tree", "--format", "text", document}, 2, "--format takes markup or html5lib");
}

TEST_F(DocumentCommandsTest, DiscoverListsTheFeedsOfAPageInItsOrder) {
    input = R"(<html><head><link rel="alternate" type="application/rss+xml" title="All" href="http://a.test/rss">
<link rel="stylesheet" href="http://a.test/css">
<link rel="alternate" type="application/feed+json" href="http://a.test/json"></head></html>)";
    const CommandLineRun result = run({"--json", "discover", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, R"([
  {
    "kind": "rss",
    "title": "All",
    "link": {
      "url": "http://a.test/rss",
      "title": "All",
      "relation": "alternate",
      "length": 0
    }
  },
  {
    "kind": "json",
    "title": "",
    "link": {
      "url": "http://a.test/json",
      "title": "",
      "relation": "alternate",
      "length": 0
    }
  }
]
)");
}

TEST_F(DocumentCommandsTest, DiscoverGivesALinkThatIsNoneNoURL) {
    input = R"(<html><link rel="alternate" type="application/rss+xml" title="All" href="a b"/></html>)";
    const auto feeds = runJSON({"discover", "-"});
    ASSERT_EQ(feeds.size(), 1U);
    EXPECT_EQ(feeds[0]["title"], "All");
    ASSERT_TRUE(feeds[0]["link"].is_object());
    EXPECT_TRUE(feeds[0]["link"]["url"].is_null());
}

TEST_F(DocumentCommandsTest, DiscoverFindsNothingInAnEmptyPage) {
    EXPECT_EQ(run({"--json", "discover", "-"}).output, "[]\n");
}

TEST_F(DocumentCommandsTest, NormaliseDoesOneOfTheOperations) {
    const std::vector<std::vector<std::string>> calls = {
        {"tags", "<p>a</p>", "a"},
        {"entities", "&lt;&#65;", "<A"},
        {"url", " http://a.test/x ", "http://a.test/x"},
        {"date", "Wed, 01 Jan 2020 00:00:00 GMT", "2020-01-01T00:00:00.000Z"},
        {"feedurl", "feed://a.test/x", "http://a.test/x"},
    };
    for (const auto& call : calls) {
        const CommandLineRun result = run({"--json", "normalise", call[0], call[1]});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, "{\n  \"result\": \"" + call[2] + "\"\n}\n");
        EXPECT_EQ(run({"normalise", call[0], call[1]}).output, call[2] + "\n");
    }
}

TEST_F(DocumentCommandsTest, NormalisePrintsNullWhereNoValueComesOfIt) {
    for (const auto& [operation, text] : std::vector<std::pair<std::string, std::string>>{
             {"url", "http://a b"}, {"date", "soon"}, {"feedurl", "ftp://a.test/"}, {"feedurl", "feed:a.test"}, {"feedurl", "a b"}}) {
        EXPECT_TRUE(runJSON({"normalise", operation, text})["result"].is_null()) << operation;
        EXPECT_EQ(run({"normalise", operation, text}).output, "");
    }
}

TEST_F(DocumentCommandsTest, NormaliseTakesStandardInputWhole) {
    input = "a&amp;\nb\n";
    EXPECT_EQ(runJSON({"normalise", "entities", "-"})["result"], "a&\nb\n");
}

TEST_F(DocumentCommandsTest, NormaliseRefusesWhatItDoesNotKnow) {
    expectError({"normalise", "case", "A"}, 2, "unknown operation 'case'");
    expectError({"normalise", "url", "a", "--base", "a b"}, 2, "--base takes a URL");
    expectError({"normalise", "url"}, 2, "missing argument");
}

TEST_F(DocumentCommandsTest, ReachabilityJudgesAFlagWord) {
    const CommandLineRun result = run({"--json", "reachability", "--flags", "6"});
    EXPECT_EQ(result.output, "{\n  \"flags\": 6,\n  \"description\": \"-R c------\",\n  \"connection\": \"unavailable\"\n}\n");
    EXPECT_EQ(runJSON({"reachability", "--flags", "38"})["connection"], "wifi");
    EXPECT_EQ(run({"reachability", "--flags", "2"}).output, "-R ------- wifi\n");
}

TEST_F(DocumentCommandsTest, ReachabilityShowsTheMachinesRoute) {
    const auto json = runJSON({"reachability"});
    EXPECT_EQ(json["connection"], json["flags"] == 2 ? "wifi" : "unavailable");
}

TEST_F(DocumentCommandsTest, ReachabilityWatchesAndPrintsOneObjectALine) {
    const CommandLineRun result = run({"--json", "reachability", "--watch", "0"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("{\"flags\":"));
    EXPECT_EQ(result.output.find('\n'), result.output.size() - 1);
}

TEST_F(DocumentCommandsTest, ReachabilityRefusesBadNumbers) {
    expectError({"reachability", "--flags", "x"}, 2, "--flags takes a whole number");
    expectError({"reachability", "--flags", "4294967296"}, 2, "--flags takes a whole number");
    expectError({"reachability", "--watch", "-1"}, 2, "--watch takes a whole number");
    expectError({"reachability", "--watch", "1", "--flags", "1"}, 2, "exclude each other");
}

} // namespace brindle
