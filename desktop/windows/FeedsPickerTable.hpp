#pragma once

#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "platform/TableView.hpp"

#include <QListWidget>
#include <QPointer>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The picker's table: a list of boxes to tick, by mouse or Space. The widget belongs to its parent. Thread: main.
class FeedsPickerTable : public TableView {
public:
    explicit FeedsPickerTable(QWidget* parent);

    QListWidget& widget() const { return *_list; }

    void setDataSource(std::weak_ptr<TableViewDataSource> dataSource) override { _dataSource = std::move(dataSource); }
    /// Kept as is: there is one column, and it is always shown.
    void setColumnHidden(std::string_view, bool) override {}
    void reloadData() override;
    void reloadRow(std::size_t row, const std::vector<std::string_view>& columns) override;
    std::vector<std::size_t> selectedRows() const override;
    std::optional<std::size_t> selectedRow() const override;

private:
    void showRow(std::size_t row);
    void didChange(const QListWidgetItem& item);

    const QPointer<QListWidget> _list;
    std::weak_ptr<TableViewDataSource> _dataSource;
    std::vector<std::shared_ptr<FeedsPickerCell>> _cells; ///< by row
};

} // namespace brindle::desktop
