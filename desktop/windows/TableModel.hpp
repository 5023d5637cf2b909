#pragma once

#include "platform/TableView.hpp"

#include <QAbstractTableModel>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The rows of a table as an item model, each cell made when it is drawn. Thread: main.
class TableModel : public QAbstractTableModel {
public:
    TableModel(std::vector<std::string> columns, QObject* parent) : QAbstractTableModel(parent), _columns(std::move(columns)) {}

    const std::weak_ptr<TableViewDataSource>& dataSource() const { return _dataSource; }
    void setDataSource(std::weak_ptr<TableViewDataSource> dataSource);
    void reloadData();
    void reloadCell(int row, int column) { emit dataChanged(index(row, column), index(row, column)); }
    /// Absent for an unknown one.
    std::optional<int> column(std::string_view identifier) const;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : _rowCount; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : static_cast<int>(_columns.size()); }
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const std::vector<std::string> _columns;
    std::weak_ptr<TableViewDataSource> _dataSource;
    int _rowCount = 0; ///< as of the last reload
};

} // namespace brindle::desktop
