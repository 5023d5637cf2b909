#pragma once

#include "platform/TableCellView.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brindle {

/// What a table shows, and how. Thread: main.
class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;
    virtual std::size_t numberOfRows() const = 0;
    /// `row` is below the number of rows; null for an unknown column.
    virtual std::shared_ptr<TableCellView> viewFor(std::string_view column, std::size_t row) const = 0;
    /// In points.
    virtual double heightOfRow(std::size_t row) const = 0;
    virtual bool shouldSelectRow(std::size_t row) const = 0;
    virtual void tableViewSelectionDidChange() = 0;
};

/// Rows of cells. It asks for what it shows, and has to be told of every change. Thread: main.
class TableView {
public:
    virtual ~TableView() = default;
    virtual void setDataSource(std::weak_ptr<TableViewDataSource> dataSource) = 0;
    virtual void setColumnHidden(std::string_view column, bool isHidden) = 0;

    /// Nothing is selected afterwards but, where the desktop can tell, the row that shows what the selected one did; the data source is not
    /// told of that.
    virtual void reloadData() = 0;
    virtual void reloadRow(std::size_t row, const std::vector<std::string_view>& columns) = 0;

    /// In ascending order.
    virtual std::vector<std::size_t> selectedRows() const = 0;
    /// The one selected last; absent while none is.
    virtual std::optional<std::size_t> selectedRow() const = 0;
};

} // namespace brindle
