#include "desktop/windows/TableModel.hpp"

#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/CellRole.hpp"
#include "desktop/windows/CellText.hpp"

#include <algorithm>
#include <limits>
#include <utility>

namespace brindle::desktop {

void TableModel::setDataSource(std::weak_ptr<TableViewDataSource> dataSource) {
    _dataSource = std::move(dataSource);
    reloadData();
}

void TableModel::reloadData() {
    beginResetModel();
    const auto source = _dataSource.lock();
    constexpr auto limit = static_cast<std::size_t>(std::numeric_limits<int>::max());
    _rowCount = source ? static_cast<int>(std::min(source->numberOfRows(), limit)) : 0;
    endResetModel();
}

std::optional<int> TableModel::column(std::string_view identifier) const {
    const auto found = std::find(_columns.begin(), _columns.end(), identifier);
    return found == _columns.end() ? std::nullopt : std::optional(static_cast<int>(found - _columns.begin()));
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const auto source = _dataSource.lock();
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || !source || row >= source->numberOfRows())
        return {};
    if (role != cellRole && role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole)
        return {};
    const auto cell = source->viewFor(_columns[static_cast<std::size_t>(index.column())], row);
    if (role == cellRole)
        return QVariant::fromValue(cell);
    if (!cell)
        return {};
    if (role == Qt::AccessibleTextRole)
        return cellDescription(*cell);
    return role == Qt::ToolTipRole ? toolTipText(cellName(*cell)) : cellName(*cell);
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    const auto source = _dataSource.lock();
    if (!index.isValid() || !source)
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsSelectable, source->shouldSelectRow(static_cast<std::size_t>(index.row())));
    return flags;
}

} // namespace brindle::desktop
