#include "tests/cli/LibraryFolder.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace brindle {

namespace {

std::string feed(const std::string& name) {
    return "<outline text='" + name + "' xmlUrl='http://b.test/" + name + "'/>";
}

std::string opml(const std::string& body) {
    return "<opml><body>" + body + "</body></opml>";
}

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

class OPMLCommandsTest : public LibraryFolderTest {
protected:
    static constexpr std::string_view exported = R"(<outline title="One" text="One" htmlUrl="" xmlUrl="http://a.test/one" type="rss"  />
<outline title="News" text="News"  >
<outline title="Second" text="Second" htmlUrl="http://site.test/" xmlUrl="http://a.test/two" type="rss"  />
</outline>
)";

    /// Gives the second feed's document an address of its site.
    void addSite() const {
        std::ofstream(supportFolder() / "Data" / second)
            << "<rss><channel><title>Second</title><link>http://site.test/</link></channel></rss>";
    }

    static std::string outlines(const std::string& document) {
        const std::size_t begin = document.find("<body  >\n") + 9;
        return document.substr(begin, document.rfind("</body>") - begin);
    }
};

TEST_F(OPMLCommandsTest, ImportAppendsToTheLibraryAndSaves) {
    run({"import", file("a.opml", opml("<outline text='G'>" + feed("A") + "</outline>" + feed("B")))});
    EXPECT_EQ(outline(), "One News(Second - ) - G(A ) B ");
}

TEST_F(OPMLCommandsTest, ImportPrintsWhatWasRead) {
    const auto nodes = runJSON({"import", file("a.opml", opml("<outline text='G'>" + feed("A") + "</outline>"))});
    ASSERT_EQ(nodes.size(), 1U);
    EXPECT_EQ(nodes[0]["kind"], "group");
    EXPECT_EQ(nodes[0]["name"], "G");
    EXPECT_EQ(nodes[0]["children"][0]["name"], "A");
    EXPECT_EQ(nodes[0]["children"][0]["url"], "http://b.test/A");
    EXPECT_EQ(nodes[0]["children"][0]["updateRate"], 30);
    EXPECT_EQ(runJSON({"list"})[3]["children"][0]["uuid"], nodes[0]["children"][0]["uuid"]);
}

TEST_F(OPMLCommandsTest, ImportPrintsAnOutlineForPeople) {
    const CommandLineRun result = run({"import", file("a.opml", opml(feed("A")))});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\nA "), std::string::npos) << result.output;
    EXPECT_TRUE(result.messages().empty()) << result.errors;
}

TEST_F(OPMLCommandsTest, ImportTakesSeveralFilesInTheirOrder) {
    run({"import", file("b.opml", opml(feed("B"))), file("a.opml", opml(feed("A")))});
    EXPECT_EQ(outline(), "One News(Second - ) - B A ");
}

TEST_F(OPMLCommandsTest, ImportReadsStandardInput) {
    input = opml(feed("A"));
    run({"import", "-"});
    EXPECT_EQ(outline(), "One News(Second - ) - A ");
}

TEST_F(OPMLCommandsTest, ImportPutsTheFeedsInThePlaceOfTheLibrary) {
    EXPECT_EQ(run({"import", "--replace", file("a.opml", opml(feed("A")))}).status, 0);
    EXPECT_EQ(outline(), "A ");
}

TEST_F(OPMLCommandsTest, ImportMakesALibraryWhereThereIsNone) {
    const std::string none = (folder() / "none").string();
    run({"--support-dir", none, "import", file("a.opml", opml(feed("A")))});
    EXPECT_EQ(runJSON({"--support-dir", none, "list"})[0]["name"], "A");
}

TEST_F(OPMLCommandsTest, ImportTakesWhatStandsBeforeAFaultAndFails) {
    const std::string broken = file("broken.opml", "<opml><body>" + feed("A") + "</opml>");
    const CommandLineRun result = run({"--json", "import", broken, file("b.opml", opml(feed("B")))});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.json().size(), 2U);
    ASSERT_EQ(result.messages().size(), 1U);
    EXPECT_NE(result.messages()[0].find(broken + " is no well-formed XML"), std::string::npos);
    EXPECT_NE(result.errors.find("Parsing of OPML file failed: "), std::string::npos) << result.errors;
    EXPECT_EQ(outline(), "One News(Second - ) - A B ");
}

TEST_F(OPMLCommandsTest, ImportFailsForAFileThatCanNotBeReadAndTakesTheOthers) {
    const CommandLineRun result = run({"import", (folder() / "none.opml").string(), file("b.opml", opml(feed("B")))});
    EXPECT_EQ(result.status, 1);
    ASSERT_EQ(result.messages().size(), 1U);
    EXPECT_NE(result.messages()[0].find("none.opml: No such file"), std::string::npos) << result.messages()[0];
    EXPECT_EQ(outline(), "One News(Second - ) - B ");
}

TEST_F(OPMLCommandsTest, ReplacingByNothingSaysThatAnEmptyLibraryIsNotStored) {
    const CommandLineRun result = run({"--json", "import", "--replace", file("a.opml", opml(""))});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.json(), nlohmann::ordered_json::array());
    ASSERT_EQ(result.messages().size(), 1U);
    EXPECT_NE(result.messages()[0].find("an empty library is not stored"), std::string::npos);
    EXPECT_EQ(outline(), "One News(Second - ) - ");
}

TEST_F(OPMLCommandsTest, ImportRefusesALibraryThatCanNotBeRead) {
    std::ofstream(supportFolder() / "Feeds.brindle") << "damaged";
    expectError({"import", file("a.opml", opml(feed("A")))}, 1, "can't be read");
    EXPECT_EQ(bytesOf(supportFolder() / "Feeds.brindle"), "damaged");
}

TEST_F(OPMLCommandsTest, ImportAndExportNeedTheirFile) {
    expectError({"import"}, 2, "missing argument");
    expectError({"export"}, 2, "missing argument");
    expectError({"export", "a", "b"}, 2, "too many arguments");
}

TEST_F(OPMLCommandsTest, ExportWritesAFileNamedByItsTitle) {
    addSite();
    const std::filesystem::path target = folder() / "My feeds.opml";
    const CommandLineRun result = run({"export", target.string()});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(outlines(bytesOf(target)), exported);
    EXPECT_NE(bytesOf(target).find("<title  >\nMy feeds</title>\n"), std::string::npos);
}

TEST_F(OPMLCommandsTest, ExportPrintsTheDocumentForADash) {
    addSite();
    const CommandLineRun result = run({"export", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("<?xml "));
    EXPECT_EQ(outlines(result.output), exported);
}

TEST_F(OPMLCommandsTest, ExportLeavesTheGroupsOut) {
    const std::string text = outlines(run({"export", "--flat", "-"}).output);
    EXPECT_EQ(text.find("News"), std::string::npos) << text;
    EXPECT_LT(text.find("\"One\""), text.find("\"Second\""));
    EXPECT_NE(text.find("\"Second\""), std::string::npos);
}

TEST_F(OPMLCommandsTest, ExportFailsWhereTheFileCanNotBeWritten) {
    expectError({"export", (folder() / "none" / "a.opml").string()}, 1, "could not be written");
}

TEST_F(OPMLCommandsTest, ExportSaysWhichTextIsNotUTF8) {
    expectError({"export", (folder() / "\xff.opml").string()}, 1, "a name in the library, or that of the file, is not UTF-8");
}

TEST_F(OPMLCommandsTest, ExportLeavesTheLibraryAsItIs) {
    const std::string before = bytesOf(supportFolder() / "Feeds.brindle");
    run({"export", (folder() / "a.opml").string()});
    EXPECT_EQ(bytesOf(supportFolder() / "Feeds.brindle"), before);
}

TEST_F(OPMLCommandsTest, AFlatExportComesBack) {
    const std::string target = (folder() / "a.opml").string();
    run({"export", "--flat", target});
    run({"import", "--replace", target});
    EXPECT_EQ(outline(), "One Second ");
}

} // namespace brindle
