#include "desktop/system/QtFilePanels.hpp"

#include "desktop/system/QtAlertPresenter.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <utility>

namespace brindle::desktop {

namespace {

namespace fs = std::filesystem;

QFileDialog* makeDialog(std::string_view fileType) {
    QWidget* const window = QtAlertPresenter::keyWindow();
    auto* const dialog = new QFileDialog(window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
    const QString type = toQString(fileType);
    dialog->setNameFilter(QStringLiteral("%1 (*.%2)").arg(type.toUpper(), type));
    dialog->setDefaultSuffix(type);
    return dialog;
}

/// File names are bytes.
std::optional<fs::path> chosenFile(const QFileDialog& dialog, int result) {
    const QStringList files = dialog.selectedFiles();
    if (result != QDialog::Accepted || files.isEmpty())
        return std::nullopt;
    return fs::path(QFile::encodeName(files.front()).toStdString());
}

/// A choice below the dialog's own fields; null where there is nothing to choose.
QComboBox* addOptions(QFileDialog& dialog, const std::vector<std::string>& options) {
    if (options.size() < 2)
        return nullptr;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto* const grid = qobject_cast<QGridLayout*>(dialog.layout());
    auto* const choice = new QComboBox(&dialog);
    choice->setObjectName(QStringLiteral("options"));
    for (const std::string& option : options)
        choice->addItem(toQString(option));
    if (grid)
        grid->addWidget(choice, grid->rowCount(), 1);
    return choice;
}

} // namespace

void QtFilePanels::beginOpenPanel(std::string_view fileType, Opened opened) {
    QFileDialog* const dialog = makeDialog(fileType);
    dialog->setFileMode(QFileDialog::ExistingFile);
    // The desktop's own panel has no other.
    dialog->setWindowTitle(QFileDialog::tr("Open"));
    QObject::connect(
        dialog, &QDialog::finished, dialog, [dialog, opened = std::move(opened)](int result) { opened(chosenFile(*dialog, result)); });
    dialog->show();
}

void QtFilePanels::beginSavePanel(const SavePanel& panel, Saved saved) {
    QFileDialog* const dialog = makeDialog(panel.fileType);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    const QComboBox* const choice = addOptions(*dialog, panel.options);
    dialog->selectFile(toQString(panel.proposedName));
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, choice, saved = std::move(saved)](int result) {
        saved(chosenFile(*dialog, result), choice ? static_cast<std::size_t>(choice->currentIndex()) : 0);
    });
    dialog->show();
}

} // namespace brindle::desktop
