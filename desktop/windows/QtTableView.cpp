#include "desktop/windows/QtTableView.hpp"

#include "desktop/windows/CellDelegate.hpp"
#include "desktop/windows/TableModel.hpp"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

namespace {

std::vector<std::string> identifiers(const std::vector<QtTableView::Column>& columns) {
    std::vector<std::string> found;
    for (const auto& column : columns)
        found.push_back(column.identifier);
    return found;
}

/// A row is one thing to the keyboard: the focus is told by the selection's colour alone.
class RowDelegate : public CellDelegate {
public:
    using CellDelegate::CellDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override {
        QStyleOptionViewItem option = given;
        option.state.setFlag(QStyle::State_HasFocus, false);
        CellDelegate::paint(painter, option, index);
    }
};

/// Says when the selection has changed, however it did, and shows whether it has the keyboard, and that there is nothing in it.
class Table : public QTableView {
public:
    using QTableView::QTableView;
    std::function<void()> onSelectionChange;
    std::function<QString()> emptyText;

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override {
        QTableView::initViewItemOption(option);
        if (!hasFocus())
            CellDelegate::dimSelection(*option);
    }
    void paintEvent(QPaintEvent* event) override {
        QTableView::paintEvent(event);
        if (!emptyText || !model() || model()->rowCount() > 0)
            return;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(0, emptyMargin, 0, 0), Qt::AlignHCenter | Qt::AlignTop, emptyText());
    }
    void keyPressEvent(QKeyEvent* event) override {
        const bool isArrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
        // The first press selects the row that has the keyboard, not the one behind it.
        if (isArrow && !selectionModel()->hasSelection() && currentIndex().isValid())
            selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        else
            QTableView::keyPressEvent(event);
    }
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
        QTableView::selectionChanged(selected, deselected);
        if (onSelectionChange)
            onSelectionChange();
    }
    /// To the cell by which a screen reader tells what a row is.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
        return QTableView::moveCursor(action, modifiers).siblingAtColumn(model()->columnCount() - 1);
    }

private:
    static constexpr int emptyMargin = 24; // points
};

} // namespace

QtTableView::QtTableView(QWidget* parent, const QString& accessibleName, std::vector<Column> columns)
    : _table(new Table(parent)), _model(new TableModel(identifiers(columns), _table)) {
    _table->setModel(_model);
    _table->setAccessibleName(accessibleName);
    _table->setItemDelegate(new RowDelegate(_table));
    _table->setSelectionBehavior(QAbstractItemView::SelectRows);
    _table->setSelectionMode(QAbstractItemView::SingleSelection);
    _table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    _table->setShowGrid(false);
    _table->setTabKeyNavigation(false);
    _table->setWordWrap(false);
    _table->setFrameShape(QFrame::NoFrame);
    _table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    _table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _table->verticalHeader()->hide();
    _table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* const header = _table->horizontalHeader();
    header->hide();
    header->setMinimumSectionSize(1);
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const int width = columns[static_cast<std::size_t>(i)].width;
        header->setSectionResizeMode(i, width > 0 ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (width > 0)
            header->resizeSection(i, width);
    }
    static_cast<Table*>(_table.data())->onSelectionChange = [this] {
        _isRestored = _isRestoring;
        if (_isRestoring)
            return;
        const auto selected = selectedRow();
        // By the time of a reload, the data source has other rows.
        _selectedName = selected ? rowName(static_cast<int>(*selected)) : QString();
        if (const auto source = _model->dataSource().lock())
            source->tableViewSelectionDidChange();
    };
    // What such a row stands for may not be what is shown.
    QObject::connect(_table, &QTableView::clicked, _model, [this] {
        const auto source = _model->dataSource().lock();
        if (source && std::exchange(_isRestored, false))
            source->tableViewSelectionDidChange();
    });
}

QtTableView::~QtTableView() {
    if (_table)
        static_cast<Table*>(_table.data())->onSelectionChange = nullptr;
}

void QtTableView::setEmptyText(std::function<QString()> text) {
    static_cast<Table*>(_table.data())->emptyText = std::move(text);
}

void QtTableView::setDataSource(std::weak_ptr<TableViewDataSource> dataSource) {
    _model->setDataSource(std::move(dataSource));
    if (const auto source = _model->dataSource().lock())
        _table->verticalHeader()->setDefaultSectionSize(qRound(source->heightOfRow(0)));
}

void QtTableView::setColumnHidden(std::string_view column, bool isHidden) {
    if (const auto place = _model->column(column))
        _table->setColumnHidden(*place, isHidden);
}

/// What a row is told apart by: the names in its cells.
QString QtTableView::rowName(int row) const {
    QString name;
    for (int column = 0; column < _model->columnCount(); ++column)
        name += _model->index(row, column).data().toString() + QLatin1Char('\n');
    return name;
}

void QtTableView::reloadData() {
    const auto selected = selectedRow();
    const int row = selected ? static_cast<int>(*selected) : 0;
    const int before = _model->rowCount();
    _model->reloadData();
    if (!selected)
        return;
    // The same rows with new ones among them or some gone, or other rows altogether: what is selected stays so, or nothing is.
    if (const auto place = placeOfSelected(row, row + _model->rowCount() - before)) {
        _isRestoring = true;
        select(*place);
        _isRestoring = false;
    }
}

/// Rows mostly come above the others; else the nearest of the rows of that name is the likeliest.
std::optional<int> QtTableView::placeOfSelected(int row, int moved) const {
    const auto isThere = [this](int place) { return place >= 0 && place < _model->rowCount() && rowName(place) == _selectedName; };
    if (isThere(moved))
        return moved;
    constexpr int farthest = 500; // rows: of a long list, that many are looked at in no time
    for (int distance = 0; distance <= farthest; ++distance) {
        for (const int place : {row - distance, row + distance}) {
            if (isThere(place))
                return place;
        }
    }
    return std::nullopt;
}

void QtTableView::reloadRow(std::size_t row, const std::vector<std::string_view>& columns) {
    if (row >= static_cast<std::size_t>(_model->rowCount()))
        return;
    for (const std::string_view column : columns) {
        if (const auto place = _model->column(column))
            _model->reloadCell(static_cast<int>(row), *place);
    }
}

std::vector<std::size_t> QtTableView::selectedRows() const {
    std::vector<std::size_t> rows;
    const auto selected = _table->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        rows.push_back(static_cast<std::size_t>(index.row()));
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::optional<std::size_t> QtTableView::selectedRow() const {
    const std::vector<std::size_t> rows = selectedRows();
    const QModelIndex current = _table->currentIndex();
    if (current.isValid() && std::find(rows.begin(), rows.end(), static_cast<std::size_t>(current.row())) != rows.end())
        return static_cast<std::size_t>(current.row());
    return rows.empty() ? std::nullopt : std::optional(rows.back());
}

void QtTableView::selectRow(std::size_t row) {
    if (row >= static_cast<std::size_t>(_model->rowCount()))
        return;
    const bool wasSelected = selectedRow() == row;
    select(static_cast<int>(row));
    // What such a row stands for may not be what is shown.
    if (const auto source = _model->dataSource().lock(); source && wasSelected) {
        _isRestored = false;
        source->tableViewSelectionDidChange();
    }
    _table->scrollTo(_table->currentIndex());
}

void QtTableView::deselectAll() {
    _isRestoring = true;
    _table->clearSelection();
    _isRestoring = false;
}

void QtTableView::select(int row) {
    const QModelIndex index = _model->index(row, _model->columnCount() - 1);
    _table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

} // namespace brindle::desktop
