#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "html/TreeDump.hpp"
#include "tests/html/Support.hpp"
#include "tests/support/Corpus.hpp"

// The tree construction cases of the html5lib suite: the tree that each text gives, as a whole document or as a fragment.

namespace brindle::html {

namespace {

/// The cases that are known to give another tree, as file name and number from 1. One that is mended must go from here.
const std::set<std::string> knownFailures = {};

struct Case {
    std::string data;
    std::string context;
    std::string tree;
    std::string newErrors;
    bool isFragment = false;
    bool needsScripting = false;
};

/// The lines of a file by the headings that stand over them, a case ending where the next `#data` begins.
std::vector<Case> casesOf(const std::string& text) {
    std::vector<Case> cases;
    std::string* section = nullptr;
    std::istringstream lines(text);
    std::string ignored;
    for (std::string line; std::getline(lines, line);) {
        if (line == "#data") {
            section = &cases.emplace_back().data;
        } else if (line == "#document") {
            section = &cases.back().tree;
        } else if (line == "#document-fragment") {
            cases.back().isFragment = true;
            section = &cases.back().context;
        } else if (line == "#new-errors") {
            section = &cases.back().newErrors;
        } else if (line == "#errors") {
            section = &ignored;
        } else if (line == "#script-on" || line == "#script-off") {
            cases.back().needsScripting = line == "#script-on";
            section = &ignored;
        } else if (section != nullptr) {
            section->append(line).append("\n");
        }
    }
    for (Case& each : cases) {
        // The line feed behind the data is the heading's, and the blank line behind the tree parts the cases.
        each.data.resize(each.data.size() - std::min<std::size_t>(each.data.size(), 1));
        each.context.resize(each.context.size() - std::min<std::size_t>(each.context.size(), 1));
        while (each.tree.ends_with("\n\n")) {
            each.tree.pop_back();
        }
    }
    return cases;
}

std::string treeOf(const Case& given) {
    Parser parser = Parser::htmlParser();
    return html5libDump(given.isFragment ? *parser.parseFragment(given.data, given.context) : *parser.parse(given.data, ""));
}

/// The errors of a section such as "(1:12) unexpected-null-character" or "(1:44-1:49) ..." by line, column and name. Of a stretch, the
/// character before its end counts.
std::vector<std::string> errorsOf(const std::string& section) {
    std::vector<std::string> errors;
    std::istringstream lines(section);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t close = line.find(") ");
        const std::size_t dash = line.find('-');
        const bool isStretch = dash < close;
        const std::string place = isStretch ? line.substr(dash + 1, close - dash - 1) : line.substr(1, close - 1);
        const std::size_t colon = place.find(':');
        const int column = std::stoi(place.substr(colon + 1)) - (isStretch ? 1 : 0);
        errors.push_back(place.substr(0, colon) + ":" + std::to_string(column) + " " + line.substr(close + 2));
    }
    return errors;
}

std::vector<std::string> errorsIn(const Case& given) {
    Parser parser = Parser::htmlParser();
    parser.setMaxErrors(1000);
    given.isFragment ? parser.parseFragment(given.data, given.context) : parser.parse(given.data, "");
    std::vector<std::string> errors;
    for (const ParseError& error : parser.errors()) {
        errors.push_back(std::to_string(error.line) + ":" + std::to_string(error.column) + " " + std::string(error.name()));
    }
    return errors;
}

} // namespace

TEST(HtmlTreeConstructionCorpusTest, GivesTheTreeOfEveryCase) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::size_t run = 0;
    std::size_t skipped = 0;
    for (const auto& file : testsupport::filesBelow(path / "html5lib" / "tree-construction")) {
        std::size_t number = 0;
        for (const Case& given : casesOf(testsupport::bytesOf(file))) {
            const std::string name = file.filename().string() + " " + std::to_string(++number);
            if (given.needsScripting) {
                ++skipped;
                continue;
            }
            ++run;
            SCOPED_TRACE(name + ": " + given.data);
            const std::string tree = treeOf(given);
            if (knownFailures.contains(name)) {
                EXPECT_NE(tree, given.tree) << "no failure any more";
            } else {
                EXPECT_EQ(tree, given.tree);
            }
        }
    }
    testsupport::noteOutcomes("html5lib-tree-construction", "html5lib tree-construction: " + std::to_string(run) + " cases, " +
                                                                std::to_string(knownFailures.size()) + " of them known to fail, and " +
                                                                std::to_string(skipped) + " skipped that need scripting\n");
    EXPECT_EQ(run, 1280U);
    EXPECT_EQ(skipped, 10U);
}

TEST(HtmlTreeConstructionCorpusTest, ReportsTheErrorsThatACaseNames) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::size_t compared = 0;
    for (const auto& file : testsupport::filesBelow(path / "html5lib" / "tree-construction")) {
        for (const Case& given : casesOf(testsupport::bytesOf(file))) {
            if (given.newErrors.empty() || given.needsScripting) {
                continue;
            }
            ++compared;
            EXPECT_EQ(errorsIn(given), errorsOf(given.newErrors)) << file.filename() << ": " << given.data;
        }
    }
    EXPECT_EQ(compared, 144U);
}

} // namespace brindle::html
