#include "tests/cli/LibraryFolder.hpp"

#include <fstream>
#include <gmock/gmock.h>

namespace brindle {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

} // namespace

class ArticlePageCommandTest : public LibraryFolderTest {
protected:
    ArticlePageCommandTest() { _document = "<rss><channel><title>F</title>" + item("Fish &amp;amp; chips", "&lt;p>Text&lt;/p>"); }

    /// Stores a document with an article of that title and description, which is its content.
    static std::string item(const std::string& title, const std::string& description) {
        return "<item><title>" + title + "</title><link>http://a.test/f</link>" +
               (description.empty() ? "" : "<description>" + description + "</description>") + "</item></channel></rss>";
    }
    void store() const { std::ofstream(supportFolder() / "Data" / first) << _document; }
    std::string key() { return runJSON({"articles", "--feed", std::string(first)})[0]["key"]; }
    std::vector<std::string> command() { return {"article", "--feed", std::string(first), "--key", key()}; }

    std::string _document;
};

TEST_F(ArticlePageCommandTest, PrintsTheStoredTextInThePage) {
    store();
    const std::string page = run(command()).output;
    EXPECT_THAT(page, HasSubstr("<h1 class=\"title\">Fish & chips</h1>"));
    EXPECT_THAT(page, HasSubstr("<p>Text</p>"));
    const auto json = runJSON(command());
    EXPECT_EQ(json["html"], page);
    EXPECT_EQ(json["url"], nullptr);
}

TEST_F(ArticlePageCommandTest, PrintsTheAddressWhereThePreferencesWantTheOriginal) {
    store();
    run({"prefs", "set", "show_original_article", "true"});
    EXPECT_EQ(run(command()).output, "http://a.test/f\n");
    const auto json = runJSON(command());
    EXPECT_EQ(json["html"], nullptr);
    EXPECT_EQ(json["url"], "http://a.test/f");
}

TEST_F(ArticlePageCommandTest, PrintsNoPageOfAnArticleWithoutContent) {
    _document = "<rss><channel><title>F</title>" + item("Title", "");
    store();
    EXPECT_EQ(run(command()).output, "");
    EXPECT_EQ(runJSON(command()), nlohmann::ordered_json::parse(R"({"html": null, "url": null})"));
}

TEST_F(ArticlePageCommandTest, FailsForAKeyThatNoArticleHas) {
    expectError({"article", "--feed", std::string(first), "--key", "none"}, 1, "no article of the feed has the key 'none'");
}

TEST_F(ArticlePageCommandTest, NeedsItsOptions) {
    expectError({"article", "--feed", std::string(first)}, 2, "give --feed and --key");
    expectError({"article", "--key", "none"}, 2, "give --feed and --key");
}

} // namespace brindle
