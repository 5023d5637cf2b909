#include "desktop/windows/PreferencesWindow.hpp"

#include "desktop/windows/PreferencesPaneView.hpp"

#include <QShortcut>
#include <utility>

namespace brindle::desktop {

PreferencesWindow::PreferencesWindow(WindowEnvironment environment)
    : QtWindow(std::move(environment)), _tabView(std::make_shared<QtTabView>(&widget())) {
    widget().setCentralWidget(&_tabView->widget());
    setStyleMask(titled | closable);
    for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close})
        connect(new QShortcut(key, &widget()), &QShortcut::activated, this, [this] { close(); });
}

void PreferencesWindow::show(PreferencesTabViewController& controller) {
    for (const PreferencesTabViewController::TabItem& item : controller.tabViewItems())
        _tabView->addTab(item.label, new PreferencesPaneView(*item.pane, &_tabView->widget()));
    controller.tabView = _tabView;
}

void PreferencesWindow::setContentSize(Size size) {
    const Size around = _tabView->surroundings();
    QtWindow::setContentSize({size.width + around.width, size.height + around.height});
}

} // namespace brindle::desktop
