#include "html/QuirksMode.hpp"

#include <gtest/gtest.h>

#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::parseHtml;
using Mode = Document::Mode;

TEST(QuirksModeTest, TakesTheUsualDocumentTypesForNoQuirks) {
    for (const std::string type : {"html", "HTML", "html SYSTEM 'about:legacy-compat'", "html PUBLIC '-//W3C//DTD HTML 4.01//EN' 'x'",
             "html PUBLIC '-//W3C//DTD XHTML 1.0 Strict//EN'", "html PUBLIC ''"}) {
        EXPECT_EQ(parseHtml("<!DOCTYPE " + type + ">")->mode(), Mode::noQuirks) << type;
    }
}

TEST(QuirksModeTest, TakesOldPublicIdentifiersForQuirksInAnyCase) {
    for (const std::string type :
        {"html PUBLIC '-//W3C//DTD HTML 3.2 Final//EN'", "html PUBLIC '-//w3c//dtd html 4.0 transitional//en' 'x'",
            "html PUBLIC '-//IETF//DTD HTML//EN//2.0'", "html PUBLIC 'html'", "html PUBLIC '-/W3C/DTD HTML 4.0 Transitional/EN'",
            "html SYSTEM 'http://www.ibm.com/data/dtd/v11/IBMxhtml1-transitional.dtd'"}) {
        EXPECT_EQ(parseHtml("<!DOCTYPE " + type + ">")->mode(), Mode::quirks) << type;
    }
    EXPECT_EQ(parseHtml("<!DOCTYPE html PUBLIC '-/W3C/DTD HTML 4.0 Transitional/EN/x'>")->mode(), Mode::noQuirks);
}

TEST(QuirksModeTest, AsksForASystemIdentifierBesideSomePublicOnes) {
    for (const std::string kind : {"Transitional", "Frameset"}) {
        const std::string type = "<!DOCTYPE html PUBLIC '-//W3C//DTD HTML 4.01 " + kind + "//EN'";
        EXPECT_EQ(parseHtml(type + ">")->mode(), Mode::quirks);
        EXPECT_EQ(parseHtml(type + " ''>")->mode(), Mode::limitedQuirks);
        EXPECT_EQ(parseHtml("<!DOCTYPE html PUBLIC '-//W3C//DTD XHTML 1.0 " + kind + "//EN'>")->mode(), Mode::limitedQuirks);
    }
}

TEST(QuirksModeTest, TakesABrokenOrForeignOrMissingDocumentTypeForQuirks) {
    for (const std::string start : {"<!DOCTYPE>", "<!DOCTYPE rss>", "<!DOCTYPE html x>", "<!DOCTYPE html PUBLIC>", "", "<!--c-->x"}) {
        EXPECT_EQ(parseHtml(start)->mode(), Mode::quirks) << start;
    }
}

} // namespace brindle::html
