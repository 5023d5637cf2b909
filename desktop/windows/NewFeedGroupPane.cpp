#include "desktop/windows/NewFeedGroupPane.hpp"

#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QFormLayout>
#include <QLineEdit>

namespace brindle::desktop {

NewFeedGroupPane::NewFeedGroupPane(NewFeedGroupViewController& controller, QWidget* parent)
    : DialogPane({[&controller] { controller.handleOK(); }, [&controller] { controller.handleCancel(); }}, parent) {
    constexpr int fieldWidth = 260; // points
    auto* const form = new QFormLayout;
    content().addLayout(form);
    auto* const name = new QLineEdit(this);
    name->setMinimumWidth(fieldWidth);
    form->addRow(toQString(localized("Name:")), name);
    bind(controller.nameTextField, name);
    setFirstField(name);
}

} // namespace brindle::desktop
