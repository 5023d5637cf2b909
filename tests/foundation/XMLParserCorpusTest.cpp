#include "foundation/XMLParser.hpp"
#include "tests/support/Corpus.hpp"

#include <gtest/gtest.h>

namespace brindle {

namespace {

/// Counts what is delivered and holds the reader to its promises about order.
class Balance : public XMLParserDelegate {
public:
    void didStartElement(std::string_view name, const XMLAttributes& attributes) override {
        open.emplace_back(name);
        for (const auto& [key, value] : attributes)
            bytes += key.size() + value.size();
    }
    void didEndElement(std::string_view name) override {
        ASSERT_FALSE(open.empty());
        EXPECT_EQ(open.back(), name);
        open.pop_back();
    }
    void foundCharacters(std::string_view text) override {
        EXPECT_FALSE(open.empty());
        bytes += text.size();
    }
    void foundCDATA(std::string_view block) override { foundCharacters(block); }

    std::vector<std::string> open;
    std::size_t bytes = 0;
};

struct Outcome {
    bool parsed = false;
    std::string error;
};

Outcome read(const std::string& document, StringEncoding encoding) {
    Balance balance;
    XMLParser parser(document, encoding);
    parser.delegate = &balance;
    Outcome outcome;
    outcome.parsed = parser.parse();
    EXPECT_LE(balance.bytes, 10'000'000 + 30 * document.size());
    if (outcome.parsed)
        EXPECT_TRUE(balance.open.empty());
    else
        outcome.error = parser.parserError()->message;
    return outcome;
}

Outcome read(const std::string& document) {
    return read(document, isValidUTF8(document) ? StringEncoding::utf8 : StringEncoding::isoLatin1);
}

} // namespace

TEST(XMLParserCorpusTest, EveryDocumentIsReadOrRefusedWithAReason) {
    BRINDLE_REQUIRE_CORPUS(corpus);
    std::size_t documents = 0;
    std::size_t parsed = 0;
    for (const std::filesystem::path& file : testsupport::filesBelow(corpus / "xml")) {
        SCOPED_TRACE(file.string());
        const std::string document = testsupport::bytesOf(file);
        for (const StringEncoding encoding : {StringEncoding::utf8, StringEncoding::isoLatin1}) {
            const Outcome outcome = read(document, encoding);
            EXPECT_TRUE(outcome.parsed || !outcome.error.empty());
        }
        ++documents;
        parsed += read(document).parsed;
    }
    EXPECT_GT(documents, 200U);
    EXPECT_GT(parsed, 100U);
}

TEST(XMLParserCorpusTest, IllFormedDocumentsAreRefused) {
    BRINDLE_REQUIRE_CORPUS(corpus);
    const std::filesystem::path folder = corpus / "xml" / "libxml2" / "errors";
    for (const std::string_view name : {"754946.xml", "attr1.xml", "attr2.xml", "content1.xml", "extra-content.xml", "name.xml",
             "unclosed-element.xml", "dup-xml-attr.xml"})
        EXPECT_FALSE(read(testsupport::bytesOf(folder / name)).parsed) << name;
}

TEST(XMLParserCorpusTest, EntityBombsEndInAFailure) {
    BRINDLE_REQUIRE_CORPUS(corpus);
    const std::filesystem::path folder = corpus / "xml" / "libxml2" / "recurse";
    for (const std::string_view name : {"lol_classic.xml", "lol_ig_attr.xml", "lol_ig_content.xml"}) {
        const Outcome outcome = read(testsupport::bytesOf(folder / name));
        EXPECT_FALSE(outcome.parsed) << name;
    }
}

TEST(XMLParserCorpusTest, HarmlessEntitiesAreRead) {
    BRINDLE_REQUIRE_CORPUS(corpus);
    const std::filesystem::path folder = corpus / "xml" / "libxml2" / "recurse";
    for (const std::string_view name : {"good.xml", "good_attr.xml", "lol_param.xml"}) {
        const Outcome outcome = read(testsupport::bytesOf(folder / name));
        EXPECT_TRUE(outcome.parsed) << name << ": " << outcome.error;
    }
}

} // namespace brindle
