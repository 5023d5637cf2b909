#include "desktop/windows/QtTabView.hpp"

#include "desktop/toolkit/Text.hpp"

#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace brindle::desktop {

QtTabView::QtTabView(QWidget* parent) : _widget(new QWidget(parent)), _bar(new QTabBar(_widget)), _views(new QStackedWidget(_widget)) {
    auto* const column = new QVBoxLayout(_widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_bar);
    column->addWidget(_views, 1);
    _bar->setDocumentMode(true);
    _bar->setExpanding(true);
    _bar->setUsesScrollButtons(false);
    QObject::connect(_bar, &QTabBar::currentChanged, _widget, [this](int index) { select(index); });
}

void QtTabView::addTab(const std::string& label, QWidget* view) {
    const QSignalBlocker blocker(_bar);
    _views->addWidget(view);
    _bar->addTab(toQString(label));
}

void QtTabView::select(int index) {
    const auto told = _delegate.lock();
    if (told)
        told->willSelectTab(static_cast<std::size_t>(index));
    _views->setCurrentIndex(index);
    if (told)
        told->didSelectTab(static_cast<std::size_t>(index));
}

std::optional<std::size_t> QtTabView::selectedTab() const {
    const int index = _bar->currentIndex();
    return index < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(index));
}

Size QtTabView::surroundings() const {
    return {0, static_cast<double>(_bar->sizeHint().height())};
}

Size QtTabView::viewSize(std::size_t index) const {
    int width = _bar->sizeHint().width();
    for (int i = 0; i < _views->count(); ++i)
        width = std::max(width, _views->widget(i)->sizeHint().width());
    const QWidget* const view = _views->widget(static_cast<int>(index));
    return {static_cast<double>(width), view ? static_cast<double>(view->sizeHint().height()) : 0};
}

} // namespace brindle::desktop
