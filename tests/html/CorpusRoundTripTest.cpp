#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "html/TreeDump.hpp"
#include "html/XmlName.hpp"
#include "tests/html/Support.hpp"
#include "tests/support/Corpus.hpp"

// Whatever a file holds, what is written of its tree reads as the same tree.

namespace brindle::html {

using testing::parseXml;

namespace {

/// Takes away what the XML syntax does not write: attributes whose key is no name.
void dropUnwritableAttributes(Document& document) {
    for (Node* node = &document; node != nullptr; node = node->nextInTree(&document)) {
        Element* const element = node->asElement();
        if (element == nullptr) {
            continue;
        }
        std::vector<Attribute> kept;
        for (const Attribute& attribute : element->attributes()) {
            if (isXmlName(attribute.key)) {
                kept.push_back(attribute);
            }
        }
        auto* const first = static_cast<Attribute*>(document.arena().allocate(kept.size() * sizeof(Attribute), alignof(Attribute)));
        std::uninitialized_copy(kept.begin(), kept.end(), first);
        element->setAttributes(Attributes({first, kept.size()}));
    }
}

/// A carriage return that a reference stood for is written as itself, and reads as a line end.
std::string dumpWithoutReturns(const Document& document) {
    return InputStream(html5libDump(document)).text();
}

void expectSameTreeAgain(const std::string& text) {
    const auto document = parseXml(text);
    document->outputSettings().setPrettyPrint(false);
    const auto again = parseXml(document->outerHtml());
    dropUnwritableAttributes(*document);
    EXPECT_TRUE(dumpWithoutReturns(*document) == dumpWithoutReturns(*again));
    const auto pretty = parseXml(parseXml(text)->outerHtml());
    EXPECT_EQ(document->getElementsByTag("link").size(), pretty->getElementsByTag("link").size());
}

} // namespace

class CorpusRoundTripTest : public ::testing::TestWithParam<const char*> {};

TEST_P(CorpusRoundTripTest, ReadsWhatItWroteAsTheSameTree) {
    BRINDLE_REQUIRE_CORPUS(path);
    const auto files = testsupport::filesBelow(path / GetParam());
    ASSERT_GE(files.size(), 50U);
    for (const auto& file : files) {
        SCOPED_TRACE(file.string());
        expectSameTreeAgain(testsupport::bytesOf(file));
    }
}

INSTANTIATE_TEST_SUITE_P(Folders, CorpusRoundTripTest, ::testing::Values("xml", "pages", "feeds/feedparser", "feeds/feedjira"));

} // namespace brindle::html
