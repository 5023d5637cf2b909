#include "desktop/windows/NewFeedItemPane.hpp"

#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/ControlBinding.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

namespace brindle::desktop {

namespace {

// In points.
constexpr int fieldWidth = 320;
constexpr int signSide = 16;
constexpr int barWidth = 120;
constexpr int barHeight = 6;

} // namespace

NewFeedItemPane::NewFeedItemPane(NewFeedItemViewController& controller, QWidget* parent)
    : DialogPane({[&controller] { controller.handleOK(); }, [&controller] { controller.handleCancel(); }}, parent) {
    addForm(controller);
    addStatus(controller);
}

void NewFeedItemPane::addForm(NewFeedItemViewController& controller) {
    auto* const form = new QFormLayout;
    content().addLayout(form);
    auto* const address = new QLineEdit(this);
    address->setMinimumWidth(fieldWidth);
    address->setInputMethodHints(Qt::ImhUrlCharactersOnly | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText);
    address->setPlaceholderText(toQString(localized("A feed, or a web page that has one")));
    auto* const name = new QLineEdit(this);
    name->setPlaceholderText(toQString(localized("The feed's own title")));
    auto* const rate = new QComboBox(this);
    form->addRow(toQString(localized("Address:")), address);
    form->addRow(toQString(localized("Name:")), name);
    form->addRow(toQString(localized("Update:")), rate);
    bind(controller.urlTextField, address);
    bind(controller.nameTextField, name);
    bind(controller.refreshRatePopupButton, rate);
    setFirstField(name);
}

void NewFeedItemPane::addStatus(NewFeedItemViewController& controller) {
    auto* const sign = new QLabel(this);
    sign->setFixedSize(signSide, signSide);
    sign->setAccessibleName(toQString(localized("An error occured")));
    auto* const bar = new QProgressBar(this);
    bar->setTextVisible(false);
    bar->setRange(0, 0);
    bar->setFixedSize(barWidth, barHeight);
    bar->setAccessibleName(toQString(localized("Loading")));
    status().addWidget(sign);
    status().addWidget(bar);
    status().addStretch();
    bind(controller.statusImageView, sign, {signSide, signSide});
    ProgressIndicator& progress = controller.progressIndicator;
    new ControlBinding(progress, bar, [bar, &progress] { bar->setVisible(progress.isAnimating()); });
}

} // namespace brindle::desktop
