#include "desktop/windows/DialogPane.hpp"

#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <utility>

namespace brindle::desktop {

DialogPane::DialogPane(Actions actions, QWidget* parent) : QWidget(parent), _content(new QVBoxLayout), _status(new QHBoxLayout) {
    auto* const buttons = new QDialogButtonBox(this);
    _accept = buttons->addButton(toQString(localized("OK")), QDialogButtonBox::AcceptRole);
    _reject = buttons->addButton(toQString(localized("Cancel")), QDialogButtonBox::RejectRole);
    _accept->setAutoDefault(true);
    _reject->setAutoDefault(true);
    _accept->setDefault(true);
    connect(_accept, &QPushButton::clicked, this, std::move(actions.accept));
    connect(_reject, &QPushButton::clicked, this, std::move(actions.reject));
    auto* const row = new QHBoxLayout;
    row->addLayout(_status, 1);
    row->addWidget(buttons);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(_content, 1);
    column->addSpacing(column->spacing());
    column->addLayout(row);
}

void DialogPane::focusFirstField() {
    if (_firstField)
        _firstField->setFocus(Qt::OtherFocusReason);
}

void DialogPane::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return _accept->click();
    case Qt::Key_Escape:
        return _reject->click();
    default:
        return QWidget::keyPressEvent(event);
    }
}

} // namespace brindle::desktop
