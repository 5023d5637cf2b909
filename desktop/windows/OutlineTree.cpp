#include "desktop/windows/OutlineTree.hpp"

#include "desktop/windows/CellDelegate.hpp"
#include "desktop/windows/CellRole.hpp"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace brindle::desktop {

namespace {

constexpr int indentationPoints = 14;
constexpr std::chrono::milliseconds springDelay(700);

bool isSelectable(const QModelIndex& index) {
    return index.flags().testFlag(Qt::ItemIsSelectable);
}

} // namespace

OutlineTree::OutlineTree(QWidget* parent) : QTreeView(parent) {
    setModel(&_model);
    setItemDelegate(new CellDelegate(this));
    setHeaderHidden(true);
    setIndentation(indentationPoints);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    // The outline draws where a drop would go by itself: what is proposed is not always where the pointer is.
    setDropIndicatorShown(false);
    setAutoExpandDelay(static_cast<int>(springDelay.count()));
    setFrameShape(NoFrame);
}

void OutlineTree::setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource) {
    _dataSource = dataSource;
    _model.setDataSource(std::move(dataSource));
}

void OutlineTree::setDelegate(std::weak_ptr<OutlineViewDelegate> delegate) {
    _model.setDelegate(std::move(delegate));
}

void OutlineTree::registerForDraggedType(std::string type) {
    _draggedTypes.push_back(std::move(type));
}

void OutlineTree::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->modifiers() == Qt::NoModifier && currentIndex().isValid() && onDoubleAction)
        return onDoubleAction(currentIndex());
    if (event->modifiers() == Qt::AltModifier && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down))
        return moveSelectedRow(event->key() == Qt::Key_Up ? -1 : 1);
    QTreeView::keyPressEvent(event);
}

void OutlineTree::mousePressEvent(QMouseEvent* event) {
    _pressedAt = event->position().toPoint();
    _pressed = indexAt(_pressedAt);
    if (onPress)
        onPress(_pressed);
    QTreeView::mousePressEvent(event);
}

void OutlineTree::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid() && onDoubleAction)
        onDoubleAction(index);
}

void OutlineTree::contextMenuEvent(QContextMenuEvent* event) {
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex row = isByKeyboard ? currentIndex() : indexAt(event->pos());
    if (!row.isValid() || !onMenu)
        return;
    if (onPress)
        onPress(row);
    onMenu(row, isByKeyboard ? viewport()->mapToGlobal(visualRect(row).center()) : event->globalPos());
}

void OutlineTree::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeView::initViewItemOption(option);
    if (!hasFocus())
        CellDelegate::dimSelection(*option);
}

/// Up and down pass the rows that can't be selected; the other keys reach them.
QModelIndex OutlineTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveUp && action != MoveDown)
        return QTreeView::moveCursor(action, modifiers);
    QModelIndex index = currentIndex().isValid() ? currentIndex() : QModelIndex();
    do {
        if (!index.isValid())
            index = action == MoveDown ? _model.index(0, 0) : QModelIndex();
        else
            index = action == MoveDown ? indexBelow(index) : indexAbove(index);
    } while (index.isValid() && !isSelectable(index));
    return index.isValid() ? index : currentIndex();
}

/// A row that can't be selected may have the focus, with the selection where it was.
QItemSelectionModel::SelectionFlags OutlineTree::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    if (index.isValid() && !isSelectable(index))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

void OutlineTree::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (onSelectionChange)
        onSelectionChange();
}

} // namespace brindle::desktop
