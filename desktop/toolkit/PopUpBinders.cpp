#include "desktop/toolkit/Binders.hpp"
#include "desktop/toolkit/ControlBinding.hpp"
#include "desktop/toolkit/Text.hpp"

#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>
#include <QToolButton>
#include <utility>

namespace brindle::desktop {

namespace {

using Fill = std::function<void()>;

/// Fills a widget anew when the items change.
class ItemsObserver : public MenuObserver {
public:
    explicit ItemsObserver(Fill fill) : _fill(std::move(fill)) {}
    void menuDidChange(Menu&) override { _fill(); }
    void menuItemDidChange(Menu&, MenuItem&) override { _fill(); }

private:
    const Fill _fill;
};

void select(const PopUpButton& button, QComboBox* box) {
    const QSignalBlocker blocker(box);
    const auto tag = button.selectedTag();
    box->setCurrentIndex(tag ? box->findData(QVariant::fromValue(static_cast<qlonglong>(*tag))) : -1);
}

void fill(const PopUpButton& button, QComboBox* box) {
    const QSignalBlocker blocker(box);
    box->clear();
    for (const auto& item : button.menu().items()) {
        if (item->isSeparator())
            box->insertSeparator(box->count());
        else
            box->addItem(toQString(item->title()), QVariant::fromValue(static_cast<qlonglong>(button.tag(*item).value_or(-1))));
    }
    select(button, box);
}

void fill(PopUpButton& button, QMenu* menu, const std::function<void()>& chosen) {
    menu->clear();
    for (const auto& item : button.menu().items()) {
        if (item->isSeparator()) {
            menu->addSeparator();
            continue;
        }
        QAction* const action = menu->addAction(toQString(item->title()).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setEnabled(item->isEnabled());
        action->setCheckable(item->state());
        action->setChecked(item->state());
        const auto tag = button.tag(*item);
        QObject::connect(action, &QAction::triggered, menu, [&button, tag, chosen] {
            button.choose(tag.value_or(-1));
            if (chosen)
                chosen();
        });
    }
}

} // namespace

void bind(PopUpButton& button, QComboBox* box) {
    fill(button, box);
    auto* const binding = new ControlBinding(button, box, [&button, box] { select(button, box); });
    auto observer = std::make_shared<ItemsObserver>([&button, box] { fill(button, box); });
    button.menu().addObserver(observer);
    binding->keep(std::move(observer));
    QObject::connect(box, &QComboBox::activated, box, [&button, box](int index) { button.choose(box->itemData(index).toLongLong()); });
}

void bind(PopUpButton& button, QToolButton* widget, std::function<void()> chosen) {
    new ControlBinding(button, widget, {});
    auto* const menu = new QMenu(widget);
    widget->setMenu(menu);
    widget->setPopupMode(QToolButton::InstantPopup);
    // Filled when it opens, so that an open menu never changes.
    QObject::connect(menu, &QMenu::aboutToShow, menu, [&button, menu, chosen = std::move(chosen)] { fill(button, menu, chosen); });
}

} // namespace brindle::desktop
