#include "tests/desktop/BrowserWindowFixture.hpp"
#include "tests/desktop/WebEngine.hpp"

#include <QApplication>
#include <QKeyEvent>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BrowserWindowKeysTest : public BrowserWindowTest {};

TEST_F(BrowserWindowKeysTest, ArrowsGoThroughTheFeedsPastTheHeaders) {
    setCollectionsOff();
    add(makeItem("Alpha", {"a"}));
    add(makeItem("Beta", {"b"}));
    show();
    QTest::keyClick(&feeds(), Qt::Key_Down);
    EXPECT_EQ(selectedFeedRow(), "Alpha");
    QTest::keyClick(&feeds(), Qt::Key_Down);
    EXPECT_EQ(selectedFeedRow(), "Beta");
    EXPECT_THAT(listedTitles(), ElementsAre("b"));
    QTest::keyClick(&feeds(), Qt::Key_Up);
    EXPECT_EQ(selectedFeedRow(), "Alpha");
}

TEST_F(BrowserWindowKeysTest, ReturnOpensTheArticleInTheWebBrowser) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    QTest::keyClick(&articles(), Qt::Key_Down);
    takeCalls();
    QTest::keyClick(&articles(), Qt::Key_Return);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/one"));
}

TEST_F(BrowserWindowKeysTest, ReturnOpensNothingWhereNoArticleIsSelected) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    QTest::keyClick(&articles(), Qt::Key_Down);
    made.window->articlesView()->deselectAll();
    takeCalls();
    QTest::keyClick(&articles(), Qt::Key_Return);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(BrowserWindowKeysTest, ReturnEditsTheFeed) {
    const auto item = add(makeItem("Alpha"));
    show();
    select(item);
    takeCalls();
    QTest::keyClick(&feeds(), Qt::Key_Return);
    EXPECT_THAT(takeCalls(), ElementsAre("editFeedItem Alpha"));
}

TEST_F(BrowserWindowKeysTest, DeleteAsksAndRemovesTheFeed) {
    const auto item = add(makeItem("Alpha"));
    add(makeItem("Beta"));
    show();
    select(item);
    QTest::keyClick(&feeds(), Qt::Key_Delete);
    ASSERT_EQ(alerts->alerts.size(), 1U);
    EXPECT_THAT(names(manager->feeds), ElementsAre("Beta"));
    EXPECT_THAT(feedRows(), ElementsAre("Collections", "Today", "Unread Articles", "Saved Articles", "Feeds", "Beta"));
    EXPECT_EQ(selectedFeedRow(), "");
}

TEST_F(BrowserWindowKeysTest, DeleteWithoutASelectedFeedDoesNothing) {
    add(makeItem("Alpha"));
    show();
    QTest::keyClick(&feeds(), Qt::Key_Delete);
    EXPECT_THAT(alerts->alerts, IsEmpty());
}

TEST_F(BrowserWindowKeysTest, NGoesToTheNextUnreadArticleBelowThenFromTheTop) {
    const auto item = add(makeItem("Alpha", {"one", "two", "three"}));
    item->articles()[1]->entry->setState(SyndicatedEntry::State::read);
    show();
    select(item);
    made.window->articlesView()->selectRow(1);
    QTest::keyClick(&articles(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "three");
    QTest::keyClick(&feeds(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "one");
}

TEST_F(BrowserWindowKeysTest, NGoesOnToTheNextFeedWithUnreadArticles) {
    const auto first = add(makeItem("Alpha", {"one"}));
    add(makeItem("Empty"));
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner", {"inner"}), group);
    show();
    select(first);
    QTest::keyClick(&feeds(), Qt::Key_N);
    QTest::keyClick(&feeds(), Qt::Key_N);
    EXPECT_EQ(selectedFeedRow(), "Inner");
    EXPECT_THAT(listedTitles(), ElementsAre("inner"));
    EXPECT_EQ(shownTitle(), "inner");
}

TEST_F(BrowserWindowKeysTest, SpaceAtTheEndOfAnArticleGoesToTheNextUnreadOne) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    QTest::keyClick(&articles(), Qt::Key_Space);
    EXPECT_EQ(shownTitle(), "one");
    QTest::keyClick(&articles(), Qt::Key_Space);
    EXPECT_EQ(shownTitle(), "two");
}

TEST_F(BrowserWindowKeysTest, SpacesPassOverNoArticleWhosePageIsStillToCome) {
    const auto item = add(makeItem("Alpha", {"one", "two", "three"}));
    show(WebEngine::start());
    select(item);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&articles(), Qt::Key_Space);
    bool hasAnswered = false;
    made.window->articlePane().container()->shown()->scrollPage(false, [&](bool) { hasAnswered = true; });
    ASSERT_TRUE(runEventLoop([&] { return hasAnswered; }));
    EXPECT_EQ(shownTitle(), "one");
    EXPECT_FALSE(item->articles()[1]->entry->isRead());
}

TEST_F(BrowserWindowKeysTest, SpaceThatIsHeldDownGoesToOneArticleAlone) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    QTest::keyPress(&articles(), Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QApplication::sendEvent(&articles(), &repeated);
    }
    EXPECT_EQ(shownTitle(), "one");
}

TEST_F(BrowserWindowKeysTest, WhoReadsInTheArticleGoesOnReadingInTheNextOne) {
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    show();
    select(item);
    made.window->articlesView()->selectRow(0);
    made.window->articlePane().container()->shown()->textBrowser()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N);
    EXPECT_EQ(shownTitle(), "two");
    EXPECT_EQ(QApplication::focusWidget(), made.window->articlePane().container()->shown()->textBrowser());
}

TEST_F(BrowserWindowKeysTest, TabGoesFromTheFeedsToTheArticles) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_Tab);
    EXPECT_TRUE(articles().hasFocus());
    QTest::keyClick(&articles(), Qt::Key_Backtab);
    EXPECT_TRUE(feeds().hasFocus());
}

TEST_F(BrowserWindowKeysTest, KeysSendTheActionsOfTheApplication) {
    show();
    application->log.clear();
    QTest::keyClick(&feeds(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(&feeds(), Qt::Key_Comma, Qt::ControlModifier);
    QTest::keyClick(&feeds(), Qt::Key_F5);
    QTest::keyClick(&feeds(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(application->log, ElementsAre("newFeed:", "showPreferences:", "handleUpdateAll:", "handleQuit:"));
}

TEST_F(BrowserWindowKeysTest, TabGoesAroundTheWholeWindow) {
    const auto item = add(makeItem("Alpha", {"one"}));
    show();
    select(item);
    made.window->articlesView()->selectRow(0);
    std::vector<std::string> stops;
    for (QWidget* each = &feeds(); stops.size() < 20 && each && (stops.empty() || each != &feeds()); each = QApplication::focusWidget()) {
        const auto* const pressed = qobject_cast<const QAbstractButton*>(each);
        stops.push_back((pressed && !pressed->text().isEmpty() ? pressed->text() : each->accessibleName()).toStdString());
        QTest::keyClick(each, Qt::Key_Tab);
    }
    EXPECT_THAT(stops, ElementsAre("Feeds", "Articles", "Keep Article", "Article actions", "Article", "Add", "Remove Feed", "Search"));
}

TEST_F(BrowserWindowKeysTest, ADayOfReadingByKeysAlone) {
    setCollectionsOff();
    const auto item = add(makeItem("Alpha", {"one", "two"}));
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner", {"needle"}), group);
    show();
    const auto press = [](auto... key) { QTest::keyClick(QApplication::focusWidget(), key...); };
    press(Qt::Key_Down);
    EXPECT_EQ(selectedFeedRow(), "Alpha");
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    EXPECT_EQ(shownTitle(), "one");
    press(Qt::Key_Space);
    EXPECT_EQ(shownTitle(), "two");
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_TRUE(saved->isSaved(*item->articles().back()));
    press(Qt::Key_N);
    EXPECT_EQ(shownTitle(), "needle");
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("two"));
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    EXPECT_EQ(shownTitle(), "two");
    press(Qt::Key_Escape);
    press(Qt::Key_Backtab);
    ASSERT_TRUE(feeds().hasFocus());
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_THAT(feedRows(), ElementsAre("Feeds", "Alpha", "Group"));
    press(Qt::Key_Delete);
    EXPECT_THAT(names(manager->feeds), ElementsAre("Alpha"));
    application->log.clear();
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_F5);
    EXPECT_THAT(application->log, ElementsAre("newFeed:", "handleUpdateAll:"));
}

TEST_F(BrowserWindowKeysTest, ControlWClosesTheWindowAndAnotherShowBringsItBack) {
    show();
    QTest::keyClick(&feeds(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(made.controller->isWindowVisible());
    made.controller->showWindow();
    EXPECT_TRUE(made.controller->isWindowVisible());
}

} // namespace

} // namespace brindle::desktop
