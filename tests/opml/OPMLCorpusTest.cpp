#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "foundation/StringEncoding.hpp"
#include "tests/opml/OPMLFixture.hpp"
#include "tests/support/Corpus.hpp"

#include <iomanip>
#include <map>
#include <sstream>

namespace brindle {

namespace {

struct Counts {
    std::size_t files = 0;
    std::size_t failed = 0;
    std::size_t feeds = 0;
    std::size_t groups = 0;
    std::size_t topLevel = 0;
};

/// What became of the documents of each folder: files, of these no well-formed XML, feeds and groups in all, and entries of the top level.
constexpr std::string_view expected = R"(
awesome-rss-feeds         35      24     240      34     243
feeder                     4       1     100      10     100
feedjira                   1       0     300      12     300
feedsmith                  4       0      13      26      21
feedvalidator             22       2      10     198      30
liferea                   14       0     251     134      17
listparser                71       7      21      29      44
netnewswire                3       0     424       8     424
newsboat                   7       0      40      11      33
picofeed                   1       0       2       1       2
rome                       1       0      11       4      13
)";

std::string table(const std::map<std::string, Counts>& folders) {
    std::ostringstream text;
    text << "\n";
    for (const auto& [folder, counts] : folders) {
        text << std::left << std::setw(20) << folder << std::right;
        for (const std::size_t count : {counts.files, counts.failed, counts.feeds, counts.groups, counts.topLevel})
            text << std::setw(8) << count;
        text << "\n";
    }
    return text.str();
}

void count(const std::vector<std::shared_ptr<Feed>>& feeds, Counts& counts) {
    counts.topLevel += feeds.size();
    forEachFeed(feeds, [&](const std::shared_ptr<Feed>& feed) { ++(feed->kind == Feed::Kind::group ? counts.groups : counts.feeds); });
}

} // namespace

class OPMLCorpusTest : public OPMLTest {};

TEST_F(OPMLCorpusTest, OutcomesAreThoseOfTheTable) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::map<std::string, Counts> folders;
    for (const std::filesystem::path& file : testsupport::filesBelow(path / "opml")) {
        Counts& counts = folders[file.lexically_relative(path / "opml").begin()->string()];
        count(read({file}), counts);
        ++counts.files;
        counts.failed += failures.size();
    }
    const std::string actual = table(folders);
    testsupport::noteOutcomes("opml", "OPML                   files  no XML   feeds  groups     top" + actual);
    EXPECT_EQ(actual, expected);
}

/// Written in ISO Latin 1, whatever it declares, a document gives the same tree.
TEST_F(OPMLCorpusTest, TheEncodingOfADocumentMakesNoDifference) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::size_t compared = 0;
    for (const std::filesystem::path& file : testsupport::filesBelow(path / "opml")) {
        const std::string bytes = testsupport::bytesOf(file);
        if (!isValidUTF8(bytes))
            continue;
        const std::string_view text = bytes.starts_with("\xEF\xBB\xBF") ? std::string_view(bytes).substr(3) : bytes;
        const std::string latin = encodeMarkup(text, StringEncoding::isoLatin1);
        // Without a byte that is Latin 1 alone, a document would be read as UTF-8 again.
        if (isValidUTF8(latin))
            continue;
        ++compared;
        EXPECT_EQ(outline(read({write("latin.opml", latin)})), outline(read({file}))) << file;
    }
    EXPECT_EQ(compared, 18U);
}

} // namespace brindle
