#include "desktop/system/QtAlertPresenter.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <utility>
#include <vector>

namespace brindle::desktop {

namespace {

/// In the order of the titles: the box sorts its own list. The first button is the default one, the last the one of the Escape key.
std::vector<QAbstractButton*> addButtons(QMessageBox& box, const std::vector<std::string>& titles) {
    std::vector<QAbstractButton*> buttons;
    for (const std::string& title : titles) {
        QPushButton* const button = box.addButton(toQString(title), buttons.empty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        if (buttons.empty())
            box.setDefaultButton(button);
        box.setEscapeButton(button);
        buttons.push_back(button);
    }
    return buttons;
}

/// Whether a window that stays above the others would cover an alert, which would then block all and be out of reach.
bool hasFloatingWindow() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
        [](const QWidget* window) { return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint); });
}

void show(const Alert& alert, AlertPresenter::Answer answer, QWidget* window) {
    const std::vector<std::string> titles = alert.buttons.empty() ? std::vector{localized("OK")} : alert.buttons;
    auto* const box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
    // Only now: the box takes other flags with its modality.
    box->setWindowFlag(Qt::WindowStaysOnTopHint, !window && hasFloatingWindow());
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setTextFormat(Qt::PlainText);
    box->setIcon(titles.size() > 1 ? QMessageBox::Question : QMessageBox::Information);
    box->setText(toQString(alert.messageText));
    box->setInformativeText(toQString(alert.informativeText));
    // The box gives its format to the first text alone.
    for (QLabel* const label : box->findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    const std::vector<QAbstractButton*> buttons = addButtons(*box, titles);
    QObject::connect(box, &QDialog::finished, box, [box, buttons, answer = std::move(answer)] {
        // Whoever closes the box by its title has clicked nothing by now.
        QAbstractButton* const clicked = box->clickedButton() ? box->clickedButton() : box->escapeButton();
        if (answer)
            answer(Alert::firstButtonReturn + static_cast<int>(std::find(buttons.begin(), buttons.end(), clicked) - buttons.begin()));
    });
    box->show();
    box->raise();
    box->activateWindow();
}

} // namespace

QWidget* QtAlertPresenter::keyWindow() {
    QWidget* const active = QApplication::activeWindow();
    return active && active->isVisible() && active->windowType() != Qt::Popup ? active : nullptr;
}

void QtAlertPresenter::runModal(const Alert& alert, Answer answer) {
    show(alert, std::move(answer), nullptr);
}

void QtAlertPresenter::beginSheet(const Alert& alert, Answer answer) {
    show(alert, std::move(answer), keyWindow());
}

} // namespace brindle::desktop
