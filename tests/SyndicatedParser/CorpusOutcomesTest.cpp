#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"
#include "tests/support/Corpus.hpp"
#include "tests/support/Folders.hpp"

#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <map>
#include <sstream>

namespace brindle {
namespace {

enum class Outcome { finished, noData, invalidFeed, html };

struct Counts {
    std::map<Outcome, std::size_t> outcomes;
    std::size_t entries = 0;
};

/// One update of a new feed, as a session makes it of the document's bytes.
std::pair<Outcome, std::size_t> update(std::string bytes) {
    DecodedDocument document = decodeDocument(std::move(bytes));
    if (document.text.empty())
        return {Outcome::noData, 0};
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    if (kind == SyndicatedFeedKind::html)
        return {Outcome::html, 0};
    const auto feed = std::make_shared<SyndicatedFeed>(kind, testsupport::presentMoment());
    const auto clock = std::make_shared<FixedClock>(testsupport::presentMoment());
    const auto parser = makeFeedParser(kind, feed, std::move(document.text), document.encoding, clock);
    bool failed = !parser;
    if (parser)
        parser->parse([&failed](const SyndicatedFeedParserResult& result) { failed = failed || !result; });
    return {failed ? Outcome::invalidFeed : Outcome::finished, feed->entries.size()};
}

std::string table(const std::map<std::string, Counts>& folders) {
    std::ostringstream text;
    text << std::left << std::setw(26) << "folder" << std::right;
    for (const std::string_view column : {"finished", "noData", "invalidFeed", "html", "entries"})
        text << std::setw(12) << column;
    text << "\n";
    for (const auto& [folder, counts] : folders) {
        text << std::left << std::setw(26) << folder << std::right;
        for (const Outcome outcome : {Outcome::finished, Outcome::noData, Outcome::invalidFeed, Outcome::html}) {
            const auto found = counts.outcomes.find(outcome);
            text << std::setw(12) << (found == counts.outcomes.end() ? 0 : found->second);
        }
        text << std::setw(12) << counts.entries << "\n";
    }
    return text.str();
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        result.push_back(line);
    return result;
}

/// The lines that only one of two tables has.
std::string difference(const std::string& expected, const std::string& actual) {
    const auto marked = [](const std::string& a, const std::string& b, std::string_view mark) {
        std::string result;
        const std::vector<std::string> others = lines(b);
        for (const std::string& line : lines(a)) {
            if (std::find(others.begin(), others.end(), line) == others.end())
                result.append(mark).append(line).append("\n");
        }
        return result;
    };
    return marked(expected, actual, "- ") + marked(actual, expected, "+ ");
}

TEST(CorpusOutcomesTest, AreThoseOfTheTable) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::map<std::string, Counts> folders;
    std::ofstream failures(testsupport::buildFolder() + "/corpus-failures.txt");
    const testsupport::CapturedConsole console;
    for (const std::string_view top : {"feeds", "xml"}) {
        for (const std::filesystem::path& file : testsupport::filesBelow(path / top)) {
            const std::filesystem::path relative = file.lexically_relative(path);
            const bool isInFolder = std::distance(relative.begin(), relative.end()) > 2;
            if (!isInFolder)
                continue;
            Counts& counts = folders[(*relative.begin() / *std::next(relative.begin())).string()];
            const auto [outcome, entries] = update(testsupport::bytesOf(file));
            ++counts.outcomes[outcome];
            counts.entries += entries;
            if (outcome == Outcome::invalidFeed)
                failures << relative.string() << "\n";
        }
    }
    const std::string actual = table(folders);
    testsupport::noteOutcomes("feeds", actual);
    const std::string expected = testsupport::bytesOf(testsupport::sourceFolder() + "/tests/SyndicatedParser/corpus-outcomes.expected");
    EXPECT_EQ(difference(expected, actual), "");
}

} // namespace
} // namespace brindle
