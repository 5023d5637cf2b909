#include <gtest/gtest.h>

#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::parseHtml;

namespace {

constexpr std::string_view start = "<select><button><selectedcontent></selectedcontent></button>";

/// What the first `selectedcontent` of a page holds, as markup.
std::string shown(const std::string& text) {
    const auto document = parseHtml(text);
    document->outputSettings().setPrettyPrint(false);
    std::string markup;
    for (const Node* node = document->getElementsByTag("selectedcontent")[0]->firstChild(); node != nullptr; node = node->nextSibling()) {
        markup += node->outerHtml();
    }
    return markup;
}

std::string shownBehindStart(const std::string& options) {
    return shown(std::string(start) + options);
}

} // namespace

TEST(SelectedContentTest, ShowsTheFirstOption) {
    EXPECT_EQ(shownBehindStart("<option>a<i b=c>d<!--e--></i>f<option>g"), "a<i b=\"c\">d<!--e--></i>f");
}

TEST(SelectedContentTest, ShowsTheLastOptionThatSaysItIsSelected) {
    EXPECT_EQ(shownBehindStart("<option>a<option selected>b<option>c<option selected>d<option>e"), "d");
}

TEST(SelectedContentTest, PassesOptionsThatAreDisabled) {
    EXPECT_EQ(shownBehindStart("<option disabled>a<optgroup disabled><option>b</optgroup><optgroup><option>c"), "c");
}

TEST(SelectedContentTest, ShowsOptionsInPlainElementsButNotInOthers) {
    EXPECT_EQ(shownBehindStart("<div><option>a"), "a");
    EXPECT_EQ(shownBehindStart("<datalist><option>a"), "");
    EXPECT_EQ(shownBehindStart("<optgroup><div><optgroup><option>a"), "");
    EXPECT_EQ(shownBehindStart("<option>a<div><option selected>b"), "a<div><option selected=\"\">b</option></div>");
}

TEST(SelectedContentTest, ShowsNothingWhereManyOptionsMayBeSelected) {
    EXPECT_EQ(shown("<select multiple><button><selectedcontent></button><option>a"), "");
}

TEST(SelectedContentTest, SelectsNoOptionOfAListByItself) {
    EXPECT_EQ(shown("<select size=2><button><selectedcontent></button><option>a"), "");
    EXPECT_EQ(shown("<select size=2><button><selectedcontent></button><option selected>a"), "a");
    EXPECT_EQ(shown("<select size=1><button><selectedcontent></button><option>a"), "a");
}

TEST(SelectedContentTest, ShowsAnOptionThatStoodBefore) {
    EXPECT_EQ(shown("<select><option>a</option><button><selectedcontent></button>"), "a");
}

TEST(SelectedContentTest, ShowsNothingOutsideASelectOrWithinAnOption) {
    EXPECT_EQ(shown("<selectedcontent></selectedcontent><select><option>a</select>"), "");
    EXPECT_EQ(shown("<select><option><selectedcontent></selectedcontent>a</select>"), "");
    EXPECT_EQ(shown("<select><object><select><selectedcontent></selectedcontent><option>a"), "");
}

TEST(SelectedContentTest, TakesTheContentThatWasThereOutOfTheTree) {
    const std::string nested = "<select><button><selectedcontent>b<table><td><option>a</option></td></tr>";
    EXPECT_EQ(shown(nested), "a");
    EXPECT_EQ(shown(nested + "c<b>d"), "ac<b>d</b>");
    EXPECT_EQ(shown(nested + "<td>e</table>f"), "af");
}

TEST(SelectedContentTest, LeavesTheOptionAsItIs) {
    const auto document = parseHtml(std::string(start) + "<option>a<i>b</i>");
    document->outputSettings().setPrettyPrint(false);
    EXPECT_EQ(document->getElementsByTag("option")[0]->outerHtml(), "<option>a<i>b</i></option>");
}

} // namespace brindle::html
