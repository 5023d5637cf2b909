#include "desktop/system/ColorScheme.hpp"
#include "tests/desktop/DialogFixture.hpp"
#include "tests/fakes/SpeechFake.hpp"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <cstdlib>
#include <set>

namespace brindle::desktop {

using ::testing::ElementsAre;

class PreferencesPaneViewTest : public DialogTest {
protected:
    QMainWindow& open(const std::string& title = "General") {
        delegate->showPreferences();
        QMainWindow* found = nullptr;
        EXPECT_TRUE(waitUntil([&] { return (found = window(title)) && found->isActiveWindow(); }));
        if (!found)
            throw std::runtime_error("no window " + title);
        return *found;
    }
    static QTabBar& tabs(const QMainWindow& shown) { return *shown.findChild<QTabBar*>(); }
    QMainWindow& open(int tab) {
        QMainWindow& shown = open();
        tabs(shown).setCurrentIndex(tab);
        QCoreApplication::processEvents();
        return shown;
    }
};

TEST_F(PreferencesPaneViewTest, HasSixTabsWhoseNamesAreTheWindowsTitles) {
    QMainWindow& shown = open();
    QTabBar& bar = tabs(shown);
    std::vector<std::string> titles;
    for (int tab = 0; tab < bar.count(); ++tab) {
        bar.setCurrentIndex(tab);
        titles.push_back(shown.windowTitle().toStdString());
        EXPECT_EQ(bar.tabText(tab).toStdString(), titles.back());
    }
    EXPECT_THAT(titles, ElementsAre("General", "Appearance", "Menu", "Feeds Browser", "Collections", "Notifications"));
}

TEST_F(PreferencesPaneViewTest, GoesThroughTheTabsByArrowKeys) {
    QMainWindow& shown = open();
    tabs(shown).setFocus();
    QTest::keyClick(&tabs(shown), Qt::Key_Right);
    EXPECT_EQ(shown.windowTitle().toStdString(), "Appearance");
}

TEST_F(PreferencesPaneViewTest, IsAsLargeAsEachPaneNeeds) {
    QMainWindow& shown = open();
    for (int tab = 0; tab < tabs(shown).count(); ++tab) {
        tabs(shown).setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (const QWidget* const each : shown.findChildren<QWidget*>()) {
            if (each->isVisible() && !each->isWindow()) {
                EXPECT_TRUE(shown.rect().contains(QRect(each->mapTo(&shown, QPoint()), each->size())))
                    << tab << " " << accessibleName(const_cast<QWidget*>(each));
            }
        }
    }
}

TEST_F(PreferencesPaneViewTest, NamesEveryControl) {
    QMainWindow& shown = open();
    for (int tab = 0; tab < tabs(shown).count(); ++tab) {
        tabs(shown).setCurrentIndex(tab);
        for (QWidget* const each : shown.findChildren<QWidget*>()) {
            const bool isControl =
                qobject_cast<QAbstractButton*>(each) || qobject_cast<QComboBox*>(each) || qobject_cast<QAbstractSpinBox*>(each);
            if (isControl && each->isVisible()) {
                EXPECT_NE(accessibleName(each), "") << tab << " " << each->metaObject()->className();
            }
        }
    }
}

TEST_F(PreferencesPaneViewTest, StoresWhatACheckBoxIsSetTo) {
    QMainWindow& shown = open();
    QCheckBox& box = find<QCheckBox>(shown, "Ask before opening five articles or more");
    const bool before = isOn(preference::warnWhenOpeningArticles);
    EXPECT_EQ(box.isChecked(), before);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(isOn(preference::warnWhenOpeningArticles), !before);
}

TEST_F(PreferencesPaneViewTest, ShowsWhatIsChangedElsewhere) {
    QCheckBox& box = find<QCheckBox>(open(), "Ask before opening five articles or more");
    const bool before = box.isChecked();
    set(preference::warnWhenOpeningArticles, !before);
    EXPECT_EQ(box.isChecked(), !before);
}

TEST_F(PreferencesPaneViewTest, StoresTheChosenOneOfTwo) {
    QMainWindow& shown = open();
    QRadioButton& first = find<QRadioButton>(shown, "Open the article");
    QRadioButton& second = find<QRadioButton>(shown, "Play its audio or video, if there is any");
    EXPECT_TRUE(first.isChecked());
    QTest::mouseClick(&second, Qt::LeftButton);
    EXPECT_TRUE(second.isChecked());
    EXPECT_FALSE(first.isChecked());
    EXPECT_EQ(environment.defaults->integerForKey(preference::articlesOpensSelectedIndex), 1);
    second.setFocus();
    QTest::keyClick(&second, Qt::Key_Up);
    EXPECT_TRUE(first.isChecked());
    EXPECT_EQ(environment.defaults->integerForKey(preference::articlesOpensSelectedIndex), 0);
}

TEST_F(PreferencesPaneViewTest, StoresAColour) {
    QMainWindow& shown = open(2);
    QPushButton& well = find<QPushButton>(shown, "Unread titles in this color:");
    const auto before = environment.defaults->dataForKey(preference::customColorForUnreadArticles);
    QTest::mouseClick(&well, Qt::LeftButton);
    auto* const dialog = well.findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(QColor(10, 200, 30));
    dialog->accept();
    const auto stored = environment.defaults->dataForKey(preference::customColorForUnreadArticles);
    ASSERT_TRUE(stored);
    EXPECT_NE(stored, before);
    EXPECT_EQ(Color::unarchive(*stored)->hexString(), Color({10 / 255.0, 200 / 255.0, 30 / 255.0, 1}).hexString());
}

TEST_F(PreferencesPaneViewTest, StoresANumber) {
    QMainWindow& shown = open(2);
    QDoubleSpinBox& size = find<QDoubleSpinBox>(shown, "In this font size:");
    EXPECT_EQ(size.value(), environment.defaults->doubleForKey(preference::customFontSizeForPreview));
    size.selectAll();
    QTest::keyClicks(&size, QStringLiteral("21"));
    QTest::keyClick(&size, Qt::Key_Return);
    EXPECT_EQ(environment.defaults->doubleForKey(preference::customFontSizeForPreview), 21);
}

TEST_F(PreferencesPaneViewTest, StoresTheVoice) {
    QMainWindow& shown = open(5);
    QComboBox& voices = find<QComboBox>(shown, "Voice:");
    ASSERT_EQ(voices.count(), 2);
    EXPECT_EQ(voices.currentText().toStdString(), "One");
    QTest::keyClick(&voices, Qt::Key_Down);
    EXPECT_EQ(environment.defaults->integerForKey(preference::speechVoiceIndex), 1);
}

TEST_F(PreferencesPaneViewTest, ComesBackWithTheTabThatWasSelectedLast) {
    QMainWindow& shown = open(4);
    QTest::keyClick(&shown, Qt::Key_Escape);
    EXPECT_FALSE(shown.isVisible());
    EXPECT_EQ(tabs(open("Collections")).currentIndex(), 4);
}

TEST_F(PreferencesPaneViewTest, ShowsTheFirstTabWhereTheLastOneIsGone) {
    set(preference::lastSelectedPrefsPanel, std::string("plugins"));
    EXPECT_EQ(tabs(open("General")).currentIndex(), 0);
}

TEST_F(PreferencesPaneViewTest, BringsTheMenuUpToDateWhenItCloses) {
    QMainWindow& shown = open();
    RunLoop::main().runPending();
    takeCalls();
    QTest::keyClick(&shown, Qt::Key_Escape);
    RunLoop::main().runPending();
    EXPECT_THAT(takeCalls(), ::testing::Contains("Building Menu..."));
}

TEST_F(PreferencesPaneViewTest, StaysAtItsTopEdgeWhenItsHeightChanges) {
    QMainWindow& shown = open();
    std::set<int> heights;
    const int top = shown.frameGeometry().top();
    for (int tab = 0; tab < tabs(shown).count(); ++tab) {
        tabs(shown).setCurrentIndex(tab);
        QCoreApplication::processEvents();
        heights.insert(shown.height());
        EXPECT_EQ(shown.frameGeometry().top(), top) << tab;
    }
    EXPECT_GT(heights.size(), 3U);
}

TEST_F(PreferencesPaneViewTest, ShowsBoxesThatAreSeenByDark) {
    QMainWindow& shown = open();
    const auto contrast = [&] {
        const QPalette palette = find<QCheckBox>(shown, "Open Brindle at login").palette();
        return std::abs(palette.color(QPalette::Base).lightness() - palette.color(QPalette::Window).lightness());
    };
    const QPalette before = QApplication::palette();
    const int byLight = contrast();
    QApplication::setPalette(ColorScheme::darkPalette());
    EXPECT_TRUE(waitUntil([&] { return contrast() > 30; }));
    QApplication::setPalette(before);
    EXPECT_TRUE(waitUntil([&] { return contrast() == byLight; }));
}

TEST_F(PreferencesPaneViewTest, GoesByTabFromTheTabsThroughTheControls) {
    QMainWindow& shown = open(4);
    tabs(shown).setFocus();
    EXPECT_THAT(tabOrder(shown), ElementsAre(accessibleName(&tabs(shown)), "In the status menu", "In the feeds browser",
                                     "In the status menu", "In the feeds browser", "In the status menu", "In the feeds browser"));
}

} // namespace brindle::desktop
