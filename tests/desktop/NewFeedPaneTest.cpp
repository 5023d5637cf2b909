#include "tests/desktop/DialogFixture.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace brindle::desktop {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The window that adds feeds and groups, with feeds of a server on this machine.
class NewFeedPaneTest : public DialogTest {
protected:
    NewFeedPaneTest() {
        environment.sessions.route = std::make_shared<NetworkRouteFake>();
        remake();
        feedsManager().createSupportDirectories();
        for (const char* const path : {"/a", "/b"})
            server.route(path, HTTPServer::document("<rss><channel><title>" + std::string(path) + "</title></channel></rss>"));
        server.route("/page", HTTPServer::document("<html><head>" + link("/a") + link("/b") + "</head><body>Text</body></html>"));
    }

    std::string link(const std::string& path) const {
        return R"(<link rel="alternate" type="application/rss+xml" title=")" + path + R"(" href=")" + server.origin() + path + R"("/>)";
    }

    QMainWindow& newFeed() {
        delegate->newFeed();
        return shown("New Feed");
    }
    QMainWindow& shown(const std::string& title) {
        QMainWindow* found = nullptr;
        EXPECT_TRUE(waitUntil([&] { return (found = window(title)) && found->isActiveWindow(); }));
        if (!found)
            throw std::runtime_error("no window " + title);
        return *found;
    }
    void typeAddress(QMainWindow& dialog, const std::string& address) {
        QTest::keyClicks(&find<QLineEdit>(dialog, "Address:"), QString::fromStdString(address));
    }
    bool isGone(const std::string& title) {
        return waitUntil([&] { return !window(title); });
    }

    HTTPServer server;
};

TEST_F(NewFeedPaneTest, HasTheKeyboardInTheAddressAndGoesOnByTab) {
    QMainWindow& dialog = newFeed();
    EXPECT_EQ(dialog.focusWidget(), &find<QLineEdit>(dialog, "Address:"));
    EXPECT_THAT(tabOrder(dialog), ElementsAre("Address:", "Name:", "Update:", "OK", "Cancel"));
}

TEST_F(NewFeedPaneTest, AddsWhatIsTypedOnEnter) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/a");
    QTest::keyClicks(&find<QLineEdit>(dialog, "Name:"), QStringLiteral("Ants & Bees"));
    QComboBox& rate = find<QComboBox>(dialog, "Update:");
    EXPECT_EQ(rate.currentText().toStdString(), "Every 5 minutes");
    QTest::keyClick(&rate, Qt::Key_Down);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(find<QProgressBar>(dialog, "Loading").isVisible());
    ASSERT_TRUE(isGone("New Feed"));
    ASSERT_THAT(names(), ElementsAre("Ants & Bees"));
    EXPECT_EQ(std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0])->updateRate, 10);
}

TEST_F(NewFeedPaneTest, ClosesOnEscapeWithoutAFeed) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/a");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(isGone("New Feed"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(NewFeedPaneTest, IsCancelledByItsCloseButton) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/a");
    QTest::mouseClick(&find<QPushButton>(dialog, "OK"), Qt::LeftButton);
    dialog.close();
    RunLoop::main().runPending();
    EXPECT_EQ(window("New Feed"), nullptr);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(NewFeedPaneTest, ShowsASignAfterAFailureAndStays) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/nothing");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return !alerts->alerts.empty(); }));
    EXPECT_FALSE(find<QLabel>(dialog, "An error occured").pixmap().isNull());
    EXPECT_TRUE(dialog.isVisible());
    for (const QProgressBar* const bar : dialog.findChildren<QProgressBar*>())
        EXPECT_FALSE(bar->isVisible());
}

TEST_F(NewFeedPaneTest, ASecondOKWhileItWaitsStartsAgain) {
    HTTPServer::Response silent = HTTPServer::document("<rss><channel><title>late</title></channel></rss>");
    silent.fault = HTTPServer::Response::Fault::hang;
    server.route("/slow", silent);
    QMainWindow& dialog = newFeed();
    QLineEdit& address = find<QLineEdit>(dialog, "Address:");
    typeAddress(dialog, server.origin() + "/slow");
    QTest::keyClick(&address, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return server.requestCount("/slow") == 1; }));
    address.clear();
    typeAddress(dialog, server.origin() + "/a");
    QTest::keyClick(&address, Qt::Key_Return);
    ASSERT_TRUE(isGone("New Feed"));
    server.release();
    ASSERT_EQ(feedsManager().feeds.size(), 1U);
    EXPECT_EQ(std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0])->url(), server.url("/a"));
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST_F(NewFeedPaneTest, ForgetsWhatWasTypedBefore) {
    typeAddress(newFeed(), "half");
    QTest::keyClick(window("New Feed")->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(find<QLineEdit>(newFeed(), "Address:").text().toStdString(), "");
}

TEST_F(NewFeedPaneTest, ShowsTheAddressOfAFeedForReadingAlone) {
    delegate->editFeedItem(add(makeItem("Ants")));
    QMainWindow& dialog = shown("Edit Feed");
    QLineEdit& address = find<QLineEdit>(dialog, "Address:");
    EXPECT_TRUE(address.isReadOnly());
    EXPECT_EQ(address.text().toStdString(), "http://127.0.0.1/Ants");
    QLineEdit& name = find<QLineEdit>(dialog, "Name:");
    EXPECT_EQ(dialog.focusWidget(), &name);
    name.selectAll();
    QTest::keyClicks(&name, QStringLiteral("Bees"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_THAT(names(), ElementsAre("Bees"));
}

TEST_F(NewFeedPaneTest, MakesAGroup) {
    delegate->newGroup();
    QMainWindow& dialog = shown("New Feed Group");
    EXPECT_THAT(tabOrder(dialog), ElementsAre("Name:", "OK", "Cancel"));
    QTest::keyClicks(&find<QLineEdit>(dialog, "Name:"), QStringLiteral("Birds"));
    QTest::keyClick(&find<QPushButton>(dialog, "OK"), Qt::Key_Space);
    EXPECT_TRUE(isGone("New Feed Group"));
    EXPECT_THAT(names(), ElementsAre("Birds"));
}

TEST_F(NewFeedPaneTest, GivesWayToThePaneOfAGroup) {
    newFeed();
    delegate->newGroup();
    QMainWindow& dialog = shown("New Feed Group");
    EXPECT_EQ(window("New Feed"), nullptr);
    EXPECT_THAT(dialog.findChildren<QComboBox*>(), IsEmpty());
}

TEST_F(NewFeedPaneTest, AsksWhichFeedsOfAPageAreWanted) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/page");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QMainWindow& picker = shown("Choose Feeds");
    EXPECT_TRUE(picker.isModal());
    QListWidget& list = find<QListWidget>(picker, "Feeds");
    ASSERT_EQ(list.count(), 2);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_TRUE(isGone("Choose Feeds"));
    EXPECT_TRUE(isGone("New Feed"));
    ASSERT_EQ(feedsManager().feeds.size(), 1U);
    EXPECT_EQ(std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0])->url(), server.url("/b"));
}

TEST_F(NewFeedPaneTest, StaysWithThePickerUntilAFeedIsTicked) {
    QMainWindow& dialog = newFeed();
    typeAddress(dialog, server.origin() + "/page");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QMainWindow& picker = shown("Choose Feeds");
    QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
    ASSERT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(alerts->alerts[0].messageText, "No feed selected!");
    EXPECT_TRUE(picker.isVisible());
    QTest::keyClick(picker.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(isGone("Choose Feeds"));
    EXPECT_TRUE(isGone("New Feed"));
    EXPECT_THAT(names(), IsEmpty());
}

} // namespace brindle::desktop
