#include "desktop/system/QtAlertPresenter.hpp"
#include "desktop/system/QtApplication.hpp"
#include "desktop/windows/Dialogs.hpp"
#include "tests/desktop/DialogFixture.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>

namespace brindle::desktop {

/// What a screen reader has to say of every window.
class AccessibleNamesTest : public DialogTest {
protected:
    AccessibleNamesTest() {
        environment.sessions.route = std::make_shared<NetworkRouteFake>();
        remake();
        feedsManager().createSupportDirectories();
    }

    QMainWindow& shown(const std::string& title) {
        QMainWindow* found = nullptr;
        EXPECT_TRUE(waitUntil([&] { return (found = window(title)); })) << title;
        if (!found)
            throw std::runtime_error("no window " + title);
        return *found;
    }
    /// A widget that a person works on, and not a part of another one.
    static bool isControl(const QWidget& widget) {
        const QWidget* const parent = widget.parentWidget();
        const bool isPart = parent && (qobject_cast<const QAbstractScrollArea*>(parent) || qobject_cast<const QComboBox*>(parent) ||
                                          parent->inherits("QAbstractSpinBox"));
        return widget.isVisible() && widget.focusPolicy() != Qt::NoFocus && !isPart;
    }
    static void expectNames(const QWidget& window) {
        int controls = 0;
        for (QWidget* const each : window.findChildren<QWidget*>()) {
            if (!isControl(*each))
                continue;
            ++controls;
            // The names of tabs are read with the bar.
            EXPECT_TRUE(accessibleName(each) != "" || qobject_cast<QTabBar*>(each))
                << window.windowTitle().toStdString() << ": " << each->metaObject()->className();
        }
        EXPECT_GT(controls, 0) << window.windowTitle().toStdString();
    }
};

TEST_F(AccessibleNamesTest, AreThereInTheBrowserAndInTheWindowOfAnArticle) {
    const auto item = add(makeItem("Ants", {"one"}));
    perform(actions::showFeedsBrowser);
    expectNames(shown("Feeds Browser"));
    set(preference::allowFBOpenArticles, true);
    perform(actions::showArticle, item->articles().front());
    expectNames(shown("one"));
}

TEST_F(AccessibleNamesTest, AreThereInTheWindowsThatAddFeeds) {
    delegate->newFeed();
    expectNames(shown("New Feed"));
    delegate->editFeedItem(add(makeItem("Ants")));
    expectNames(shown("Edit Feed"));
    delegate->newGroup();
    expectNames(shown("New Feed Group"));
}

TEST_F(AccessibleNamesTest, AreThereInThePickerOfFeeds) {
    HTTPServer server;
    server.route("/page", HTTPServer::document(R"(<html><head><link rel="alternate" type="application/rss+xml" title="a" href="/a"/>)"
                                               R"(<link rel="alternate" type="application/rss+xml" title="b" href="/b"/></head></html>)"));
    for (const char* const path : {"/a", "/b"})
        server.route(path, HTTPServer::document("<rss><channel><title>t</title></channel></rss>"));
    delegate->newFeed();
    QTest::keyClicks(&find<QLineEdit>(shown("New Feed"), "Address:"), QString::fromStdString(server.origin() + "/page"));
    QTest::keyClick(shown("New Feed").focusWidget(), Qt::Key_Return);
    expectNames(shown("Choose Feeds"));
    QTest::keyClick(shown("Choose Feeds").focusWidget(), Qt::Key_Escape);
}

TEST_F(AccessibleNamesTest, AreThereInThePreferences) {
    delegate->showPreferences();
    QMainWindow& preferences = shown("General");
    auto& bar = *preferences.findChild<QTabBar*>();
    for (int tab = 0; tab < bar.count(); ++tab) {
        bar.setCurrentIndex(tab);
        expectNames(preferences);
    }
}

TEST_F(AccessibleNamesTest, AreThereInThePlayer) {
    const auto player = makeMediaPlayer({environment.defaults, {}}, alerts);
    player->setTitle("Talk");
    player->showWindow();
    expectNames(shown("Talk"));
}

TEST_F(AccessibleNamesTest, AreThereInTheFirstWindow) {
    const auto splash = makeSplashWindow({environment.defaults, {}}, std::make_shared<StatusMenu>());
    splash->show();
    expectNames(shown("Welcome to Brindle"));
    splash->close();
}

TEST_F(AccessibleNamesTest, AreThereInAlertsAndTheAboutPanel) {
    QtAlertPresenter().runModal({"Question?", "Text", {"Yes", "Cancel"}}, {});
    QtApplication application;
    application.orderFrontStandardAboutPanel();
    int dialogs = 0;
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (!each->isVisible() || !qobject_cast<QDialog*>(each))
            continue;
        expectNames(*each);
        ++dialogs;
    }
    EXPECT_EQ(dialogs, 2);
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMessageBox*>(each))
            each->close();
    }
}

} // namespace brindle::desktop
