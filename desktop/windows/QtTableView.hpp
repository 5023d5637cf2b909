#pragma once

#include "platform/TableView.hpp"

#include <QPointer>
#include <QTableView>
#include <functional>
#include <string>
#include <vector>

namespace brindle::desktop {

class TableModel;

/// The table view of the desktop: rows of one height, that of the first, without lines between. The widget belongs to its parent. Thread:
/// main.
class QtTableView : public TableView {
public:
    struct Column {
        std::string identifier;
        int width = 0; ///< points; 0 takes what the others leave
    };

    /// `accessibleName` tells what is listed. `columns` has at least one.
    QtTableView(QWidget* parent, const QString& accessibleName, std::vector<Column> columns);

    ~QtTableView() override;

    QTableView& widget() const { return *_table; }
    /// What is told where there are no rows; asked at each drawing.
    void setEmptyText(std::function<QString()> text);
    /// Selects a row alone and scrolls to it, and tells the data source, of a row that was selected already as well; nothing beyond the
    /// last.
    void selectRow(std::size_t row);
    /// Without a word to the data source.
    void deselectAll();

    void setDataSource(std::weak_ptr<TableViewDataSource> dataSource) override;
    void setColumnHidden(std::string_view column, bool isHidden) override;
    /// A row that is still there, as its name tells, stays selected.
    void reloadData() override;
    void reloadRow(std::size_t row, const std::vector<std::string_view>& columns) override;
    std::vector<std::size_t> selectedRows() const override;
    std::optional<std::size_t> selectedRow() const override;

private:
    QString rowName(int row) const;
    std::optional<int> placeOfSelected(int row, int moved) const;
    void select(int row);

    const QPointer<QTableView> _table;
    TableModel* const _model;  ///< the table's
    bool _isRestoring = false; ///< the selection that a person made
    bool _isRestored = false;  ///< and nobody was told of it since
    QString _selectedName;     ///< of the selected row, as it was selected
};

} // namespace brindle::desktop
