#include "desktop/windows/QtOutlineView.hpp"

#include "desktop/windows/CellDelegate.hpp"

#include <QAbstractEventDispatcher>
#include <algorithm>
#include <utility>

namespace brindle::desktop {

QtOutlineView::QtOutlineView(QWidget* parent, const QString& accessibleName) : _tree(new OutlineTree(parent)) {
    _tree->setAccessibleName(accessibleName);
    _tree->onSelectionChange = [this] { selectionDidChange(); };
    _collapse = QObject::connect(_tree, &QTreeView::collapsed, _tree, [this](const QModelIndex& index) { deselectBelow(index); });
    // Not all that changes what is listed tells of it, such as an import: so it is looked at before the program sleeps.
    _sleep = QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, _tree, [this] {
        if (_tree->isVisible())
            catchUp();
    });
    _tree->onPress = [this](const QModelIndex& index) { _clicked = index; };
    _tree->onDoubleAction = [this](const QModelIndex& index) {
        _clicked = index;
        if (onDoubleAction)
            onDoubleAction();
    };
}

QtOutlineView::~QtOutlineView() {
    if (!_tree)
        return;
    _tree->onSelectionChange = nullptr;
    _tree->onPress = nullptr;
    _tree->onDoubleAction = nullptr;
    _tree->onMenu = nullptr;
    QObject::disconnect(_sleep);
    QObject::disconnect(_collapse);
}

void QtOutlineView::setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource) {
    _tree->setDataSource(std::move(dataSource));
}

void QtOutlineView::setDelegate(std::weak_ptr<OutlineViewDelegate> delegate) {
    _delegate = delegate;
    _tree->setDelegate(std::move(delegate));
}

void QtOutlineView::setAllowsMultipleSelection(bool allows) {
    _tree->setSelectionMode(allows ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void QtOutlineView::setVerticalMotionCanBeginDrag(bool canBegin) {
    _tree->setVerticalMotionCanBeginDrag(canBegin);
}

void QtOutlineView::registerForDraggedType(std::string_view type) {
    _tree->registerForDraggedType(std::string(type));
}

double QtOutlineView::rowHeight() const {
    return CellDelegate::rowHeight(_tree->font());
}

void QtOutlineView::reloadData() {
    _tree->outline().reloadData();
    selectionDidChange();
}

void QtOutlineView::reloadItem(const OutlineItem& item, bool reloadChildren) {
    if (reloadChildren)
        keepSelection([&] { _tree->outline().reloadItem(item, true); });
    else
        _tree->outline().reloadItem(item, false);
}

/// What is selected stays so where it is still there; the toolkit would select a row beside one that goes.
void QtOutlineView::keepSelection(const std::function<void()>& change) {
    ++_updates;
    const OutlineItem selected = selectedItem();
    change();
    const QModelIndex index = selected ? _tree->outline().indexOf(selected) : QModelIndex();
    if (index.isValid())
        _tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        _tree->selectionModel()->clearSelection();
    --_updates;
    selectionDidChange();
}

void QtOutlineView::catchUp() {
    if (_updates > 0)
        return;
    const std::vector<OutlineItem> items = _tree->outline().itemsOutOfStep();
    if (items.empty())
        return;
    keepSelection([&] {
        for (const OutlineItem& item : items)
            _tree->outline().catchUp(item);
    });
}

void QtOutlineView::expandItem(const OutlineItem& item) {
    const auto delegate = _delegate.lock();
    const QModelIndex index = _tree->outline().indexOf(item);
    if (!index.isValid() || !delegate || !delegate->shouldExpandItem(item))
        return;
    // The widget lays itself out later; who asks for a row below wants it now.
    _tree->outline().rowCount(index);
    _tree->expand(index);
}

void QtOutlineView::beginUpdates() {
    ++_updates;
}

void QtOutlineView::endUpdates() {
    --_updates;
    catchUp();
    selectionDidChange();
}

void QtOutlineView::insertItem(std::size_t index, const OutlineItem& parent) {
    _tree->outline().insertItem(index, parent);
}

bool QtOutlineView::isCurrentWithin(const QModelIndex& index) const {
    QModelIndex current = _tree->currentIndex();
    while (current.isValid() && current != index)
        current = current.parent();
    return current.isValid();
}

/// Nothing stays selected that nobody sees.
void QtOutlineView::deselectBelow(const QModelIndex& index) {
    if (isCurrentWithin(index) && _tree->currentIndex() != index)
        _tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::Clear);
}

void QtOutlineView::removeItem(std::size_t index, const OutlineItem& parent) {
    beginUpdates();
    const QModelIndex removed = _tree->outline().index(static_cast<int>(index), 0, _tree->outline().indexOf(parent));
    // The keyboard goes on beside the row that goes; nothing is selected in its place.
    if (isCurrentWithin(removed)) {
        const QModelIndex below = removed.siblingAtRow(removed.row() + 1);
        const QModelIndex beside = below.isValid() ? below : _tree->indexAbove(removed);
        _tree->selectionModel()->setCurrentIndex(beside, QItemSelectionModel::Clear);
    }
    _tree->outline().removeItem(index, parent);
    endUpdates();
}

void QtOutlineView::moveItem(std::size_t index, const OutlineItem& parent, std::size_t newIndex, const OutlineItem& newParent) {
    beginUpdates();
    const QModelIndex target = _tree->outline().indexOf(newParent);
    const QModelIndex moved = _tree->outline().index(static_cast<int>(index), 0, _tree->outline().indexOf(parent));
    if (target.isValid() && !_tree->isExpanded(target) && isCurrentWithin(moved))
        _tree->selectionModel()->setCurrentIndex(target, QItemSelectionModel::Clear);
    _tree->outline().moveItem(index, parent, newIndex, newParent);
    endUpdates();
}

OutlineItem QtOutlineView::selectedItem() const {
    const auto selected = _tree->selectionModel()->selectedRows();
    return selected.isEmpty() ? nullptr : _tree->outline().item(selected.front());
}

void QtOutlineView::selectionDidChange() {
    if (_updates > 0)
        return;
    OutlineItem selected = selectedItem();
    const bool isOther = selected != _toldSelection || _tree->selectionMode() != QAbstractItemView::SingleSelection;
    if (!isOther)
        return;
    _toldSelection = std::move(selected);
    if (const auto delegate = _delegate.lock())
        delegate->outlineViewSelectionDidChange();
}

std::optional<std::size_t> QtOutlineView::rowOf(const QModelIndex& index) const {
    if (!index.isValid())
        return std::nullopt;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
        if (!_tree->isExpanded(above))
            return std::nullopt;
    }
    std::size_t row = 0;
    for (QModelIndex each = _tree->outline().index(0, 0); each.isValid(); each = _tree->indexBelow(each)) {
        if (each == index)
            return row;
        ++row;
    }
    return std::nullopt;
}

QModelIndex QtOutlineView::indexAtRow(std::size_t row) const {
    QModelIndex index = _tree->outline().index(0, 0);
    for (std::size_t i = 0; i < row && index.isValid(); ++i)
        index = _tree->indexBelow(index);
    return index;
}

std::vector<std::size_t> QtOutlineView::selectedRows() const {
    std::vector<std::size_t> rows;
    const auto selected = _tree->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) {
        if (const auto row = rowOf(index))
            rows.push_back(*row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::optional<std::size_t> QtOutlineView::clickedRow() const {
    return rowOf(_clicked);
}

OutlineItem QtOutlineView::itemAtRow(std::size_t row) const {
    return _tree->outline().item(indexAtRow(row));
}

std::optional<std::size_t> QtOutlineView::rowForItem(const OutlineItem& item) const {
    return rowOf(_tree->outline().indexOf(item));
}

void QtOutlineView::selectRow(std::size_t row, bool byExtendingSelection) {
    const QModelIndex index = indexAtRow(row);
    if (!index.isValid())
        return;
    const auto command = byExtendingSelection ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
    _tree->selectionModel()->setCurrentIndex(index, command);
}

void QtOutlineView::scrollRowToVisible(std::size_t row) {
    _tree->scrollTo(indexAtRow(row));
}

} // namespace brindle::desktop
