#include "tests/desktop/BrowserWindowFixture.hpp"

#include <QSplitter>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;

class BrowserWindowSearchTest : public BrowserWindowTest {};

TEST_F(BrowserWindowSearchTest, WhatIsTypedIntoTheSearchFieldIsSearchedAndHidesTheFeeds) {
    add(makeItem("Alpha", {"needle one", "hay"}));
    add(makeItem("Beta", {"Needle two"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(searchField().hasFocus());
    QTest::keyClicks(&searchField(), "needle");
    EXPECT_THAT(listedTitles(), ElementsAre("needle one", "Needle two"));
    EXPECT_FALSE(feeds().isVisible());
}

TEST_F(BrowserWindowSearchTest, AListWithNothingInItSaysSo) {
    add(makeItem("Alpha", {"needle"}));
    show();
    searchField().setFocus();
    QTest::keyClicks(&searchField(), "zebra");
    ASSERT_THAT(listedTitles(), ElementsAre());
    const auto isBlank = [&] {
        const QImage seen = articles().viewport()->grab().toImage();
        QImage blank = seen;
        blank.fill(seen.pixelColor(1, 1));
        return seen == blank;
    };
    EXPECT_FALSE(isBlank());
}

TEST_F(BrowserWindowSearchTest, EscapeEndsTheSearch) {
    add(makeItem("Alpha", {"needle"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&searchField(), "needle");
    QTest::keyClick(&searchField(), Qt::Key_Escape);
    EXPECT_EQ(made.controller->searchField.stringValue(), "");
    EXPECT_TRUE(feeds().isVisible());
    EXPECT_TRUE(articles().hasFocus());
}

TEST_F(BrowserWindowSearchTest, ASearchLeavesNothingSelected) {
    const auto item = add(makeItem("Alpha", {"needle"}));
    show();
    select(item);
    made.window->articlesView()->selectRow(0);
    searchField().setFocus();
    QTest::keyClicks(&searchField(), "n");
    EXPECT_EQ(shownTitle(), "");
    QTest::keyClick(&searchField(), Qt::Key_Return);
    QTest::keyClick(&articles(), Qt::Key_Down);
    EXPECT_EQ(shownTitle(), "needle");
}

TEST_F(BrowserWindowSearchTest, ReturnInTheSearchFieldGoesToWhatWasFound) {
    add(makeItem("Alpha", {"needle"}));
    show();
    searchField().setFocus();
    QTest::keyClicks(&searchField(), "needle");
    QTest::keyClick(&searchField(), Qt::Key_Return);
    EXPECT_TRUE(articles().hasFocus());
    EXPECT_THAT(listedTitles(), ElementsAre("needle"));
}

TEST_F(BrowserWindowSearchTest, ALetterThatIsTypedIntoTheSearchFieldIsNoCommand) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    searchField().setFocus();
    QTest::keyClick(&searchField(), Qt::Key_N);
    EXPECT_EQ(searchField().text(), "n");
    EXPECT_EQ(shownTitle(), "");
}

TEST_F(BrowserWindowSearchTest, TheWidthsThatArePulledDuringASearchComeBack) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&searchField(), "needle");
    ASSERT_FALSE(feeds().isVisible());
    QSplitter& splitter = made.window->splitter();
    splitter.setSizes({0, 500, 400});
    emit splitter.splitterMoved(500, 2);
    const int articlesWidth = splitter.sizes()[1];
    made = {};
    const std::string key = "NSSplitView Subview Frames " + std::string(FeedsBrowserWindowController::frameAutosaveName);
    const QStringList widths = QString::fromStdString(defaults->stringForKey(key).value_or("")).split(QLatin1Char(' '));
    ASSERT_EQ(widths.size(), 3);
    EXPECT_GT(widths[0].toInt(), 0);
    EXPECT_EQ(widths[1].toInt(), articlesWidth);
}

} // namespace

} // namespace brindle::desktop
