#include "desktop/system/QtFilePanels.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/FileManager.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class QtFilePanelsTest : public testing::Test {
protected:
    QtFilePanelsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    static QFileDialog* shown() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            auto* const dialog = qobject_cast<QFileDialog*>(widget);
            if (dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    void choose(const char* name) const {
        shown()->selectFile(toQString((_folder / name).string()));
        static_cast<QDialog*>(shown())->accept();
    }

    TemporaryFolder _folder;
    QtFilePanels _panels;
    std::optional<std::filesystem::path> _file;
    std::size_t _option = 99;
};

} // namespace

TEST_F(QtFilePanelsTest, GivesTheFileToOpen) {
    ASSERT_TRUE(FileManager::writeAtomically(_folder / "mine.opml", "<opml/>"));
    _panels.beginOpenPanel("opml", [this](const auto& file) { _file = file; });
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->nameFilters(), QStringList(QStringLiteral("OPML (*.opml)")));
    choose("mine.opml");
    EXPECT_EQ(_file, _folder / "mine.opml");
}

TEST_F(QtFilePanelsTest, GivesNothingWhenItIsCancelled) {
    bool isAnswered = false;
    _panels.beginOpenPanel("opml", [&](const auto& file) { isAnswered = !file; });
    shown()->reject();
    EXPECT_TRUE(isAnswered);
}

TEST_F(QtFilePanelsTest, GivesTheFileToSaveWithItsExtensionAndTheOption) {
    _panels.beginSavePanel({"opml", "Subscriptions", {"First", "Second"}}, [this](const auto& file, std::size_t option) {
        _file = file;
        _option = option;
    });
    ASSERT_NE(shown(), nullptr);
    auto* const options = shown()->findChild<QComboBox*>(QStringLiteral("options"));
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(options->currentText(), QStringLiteral("First"));
    options->setCurrentIndex(1);
    choose("mine");
    EXPECT_EQ(_file, _folder / "mine.opml");
    EXPECT_EQ(_option, 1U);
}

} // namespace brindle::desktop
