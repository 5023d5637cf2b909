#include "desktop/windows/FeedsPickerTable.hpp"

#include "desktop/toolkit/BoxColors.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <QSignalBlocker>

namespace brindle::desktop {

FeedsPickerTable::FeedsPickerTable(QWidget* parent) : _list(new QListWidget(parent)) {
    constexpr int gap = 2; // points
    _list->setUniformItemSizes(true);
    _list->setSpacing(gap);
    _list->viewport()->setBackgroundRole(QPalette::Window);
    BoxColors::apply(_list);
    _list->setTextElideMode(Qt::ElideMiddle);
    _list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _list->setAccessibleName(toQString(localized("Feeds")));
    QObject::connect(_list, &QListWidget::itemChanged, _list, [this](QListWidgetItem* item) { didChange(*item); });
}

void FeedsPickerTable::reloadData() {
    const auto source = _dataSource.lock();
    const std::size_t count = source ? source->numberOfRows() : 0;
    _list->clear();
    _cells.assign(count, nullptr);
    for (std::size_t row = 0; row < count; ++row)
        showRow(row);
    _list->setCurrentRow(0);
}

void FeedsPickerTable::reloadRow(std::size_t row, const std::vector<std::string_view>&) {
    if (row < _cells.size())
        showRow(row);
}

void FeedsPickerTable::showRow(std::size_t row) {
    const auto source = _dataSource.lock();
    if (!source)
        return;
    _cells[row] = std::dynamic_pointer_cast<FeedsPickerCell>(source->viewFor(FeedsPickerViewController::feedColumn, row));
    const QSignalBlocker blocker(_list);
    const int place = static_cast<int>(row);
    while (_list->count() <= place)
        _list->addItem(new QListWidgetItem);
    QListWidgetItem& item = *_list->item(place);
    const Button* const box = _cells[row] ? &_cells[row]->checkBox : nullptr;
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item.setText(box ? titleText(box->title()) : QString());
    item.setToolTip(toolTipText(item.text()));
    item.setCheckState(box && box->state() ? Qt::Checked : Qt::Unchecked);
}

void FeedsPickerTable::didChange(const QListWidgetItem& item) {
    const auto row = static_cast<std::size_t>(_list->row(&item));
    const auto& cell = row < _cells.size() ? _cells[row] : nullptr;
    if (cell && cell->checkBox.state() != (item.checkState() == Qt::Checked))
        cell->checkBox.press();
}

std::vector<std::size_t> FeedsPickerTable::selectedRows() const {
    const auto row = selectedRow();
    return row ? std::vector<std::size_t>{*row} : std::vector<std::size_t>{};
}

std::optional<std::size_t> FeedsPickerTable::selectedRow() const {
    const int row = _list->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

} // namespace brindle::desktop
