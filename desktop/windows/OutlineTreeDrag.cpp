#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/OutlineTree.hpp"

#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <algorithm>
#include <utility>

// Drag and drop, by the rules of the data source.

namespace brindle::desktop {

namespace {

/// So much of a row's height, at its upper and at its lower end, stands for the place between it and the next.
constexpr int edgeParts = 4;
constexpr int markWidth = 2; // points

QByteArray toBytes(const std::string& bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

} // namespace

Pasteboard OutlineTree::pasteboard(const QMimeData& dragged) const {
    Pasteboard board;
    for (const std::string& type : _draggedTypes) {
        if (const QString format = toQString(type); dragged.hasFormat(format))
            board.items.push_back({type, dragged.data(format).toStdString()});
    }
    return board;
}

bool OutlineTree::allows(const Drop& drop, const Pasteboard& board) const {
    const auto source = _dataSource.lock();
    return source && !board.items.empty() && source->validateDrop(board, drop.item, drop.index) != DragOperation::none;
}

/// What a point may mean, the likeliest first: a row itself, or the place above or below it.
std::vector<OutlineTree::Drop> OutlineTree::candidates(const QPoint& point) const {
    const QModelIndex row = indexAt(point);
    if (!row.isValid())
        return {Drop{}};
    const QRect rect = visualRect(row);
    const Drop on = {_model.item(row), OutlineViewDataSource::dropOnItemIndex};
    const bool isHeader = !row.parent().isValid();
    const Drop above = isHeader ? on : Drop{_model.item(row.parent()), row.row()};
    const bool showsChildren = isExpanded(row) && _model.rowCount(row) > 0;
    Drop below = {_model.item(row.parent()), row.row() + 1};
    if (showsChildren)
        below = {_model.item(row), 0};
    else if (isHeader)
        below = on;
    const int edge = rect.height() / edgeParts;
    const Drop& nearer = point.y() < rect.center().y() ? above : below;
    const bool isAtEdge = point.y() < rect.top() + edge || point.y() > rect.bottom() - edge;
    return isAtEdge ? std::vector{nearer} : std::vector{on, nearer};
}

std::optional<OutlineTree::Drop> OutlineTree::dropAt(const QPoint& point, const Pasteboard& board) const {
    const std::vector<Drop> drops = candidates(point);
    const auto found = std::find_if(drops.begin(), drops.end(), [&](const Drop& drop) { return allows(drop, board); });
    return found == drops.end() ? std::nullopt : std::optional(*found);
}

/// Tells the data source of a drag of one row, which `run` carries out; false where the row can't be dragged.
bool OutlineTree::drag(const OutlineItem& item, const std::function<void(const Pasteboard&)>& run) {
    const auto source = _dataSource.lock();
    const auto written = source && item ? source->pasteboardWriter(item) : std::nullopt;
    if (!written)
        return false;
    source->draggingSessionWillBegin({item});
    run(Pasteboard{{*written}});
    source->draggingSessionEnded();
    return true;
}

void OutlineTree::startDrag(Qt::DropActions) {
    const QPoint motion = viewport()->mapFromGlobal(QCursor::pos()) - _pressedAt;
    if (!_verticalMotionCanBeginDrag && std::abs(motion.y()) > std::abs(motion.x()))
        return;
    const QRect rect = visualRect(_pressed);
    drag(_model.item(_pressed), [&](const Pasteboard& board) {
        auto* const dragged = new QMimeData;
        for (const PasteboardItem& written : board.items)
            dragged->setData(toQString(written.type), toBytes(written.data));
        QDrag session(this);
        session.setMimeData(dragged);
        session.setPixmap(viewport()->grab(rect));
        session.setHotSpot(_pressedAt - rect.topLeft());
        session.exec(Qt::MoveAction);
    });
    setDropTarget(std::nullopt);
}

void OutlineTree::dragEnterEvent(QDragEnterEvent* event) {
    if (!pasteboard(*event->mimeData()).items.empty())
        event->acceptProposedAction();
}

void OutlineTree::dragMoveEvent(QDragMoveEvent* event) {
    // Scrolls at the edges, and opens the groups that the pointer rests on.
    QTreeView::dragMoveEvent(event);
    setDropTarget(dropAt(event->position().toPoint(), pasteboard(*event->mimeData())));
    event->setDropAction(Qt::MoveAction);
    event->setAccepted(_dropTarget.has_value());
}

void OutlineTree::dragLeaveEvent(QDragLeaveEvent* event) {
    QTreeView::dragLeaveEvent(event);
    setDropTarget(std::nullopt);
}

void OutlineTree::dropEvent(QDropEvent* event) {
    const Pasteboard board = pasteboard(*event->mimeData());
    const auto drop = dropAt(event->position().toPoint(), board);
    const auto source = _dataSource.lock();
    stopAutoScroll();
    setState(NoState);
    setDropTarget(std::nullopt);
    event->setDropAction(Qt::MoveAction);
    event->setAccepted(drop && source && source->acceptDrop(board, drop->item, drop->index));
}

/// The same move as by a drag, for the keyboard.
void OutlineTree::moveSelectedRow(int step) {
    const QModelIndex row = currentIndex();
    if (!row.isValid() || !selectionModel()->isSelected(row))
        return;
    const int place = step < 0 ? row.row() - 1 : row.row() + 2;
    if (place < 0 || place > _model.rowCount(row.parent()))
        return;
    const Drop drop = {_model.item(row.parent()), place};
    drag(_model.item(row), [&](const Pasteboard& board) {
        if (allows(drop, board))
            _dataSource.lock()->acceptDrop(board, drop.item, drop.index);
    });
    scrollTo(currentIndex());
}

void OutlineTree::setDropTarget(std::optional<Drop> drop) {
    _dropTarget = std::move(drop);
    viewport()->update();
}

/// A frame for a drop on a row, a line without height for one between rows.
QRect OutlineTree::indicatorRect(const Drop& drop) const {
    const QModelIndex item = _model.indexOf(drop.item);
    if (drop.index < 0)
        return item.isValid() ? visualRect(item) : viewport()->rect();
    const int count = _model.rowCount(item);
    if (count == 0)
        return visualRect(item);
    const int row = static_cast<int>(std::min<std::ptrdiff_t>(drop.index, count - 1));
    QModelIndex sibling = _model.index(row, 0, item);
    const QRect rect = visualRect(sibling);
    if (drop.index < count)
        return {rect.left(), rect.top(), rect.width(), 0};
    // Behind the last one, and all that is shown below it.
    while (isExpanded(sibling) && _model.rowCount(sibling) > 0)
        sibling = _model.index(_model.rowCount(sibling) - 1, 0, sibling);
    return {rect.left(), visualRect(sibling).bottom(), rect.width(), 0};
}

void OutlineTree::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (!_dropTarget)
        return;
    const QRect rect = indicatorRect(*_dropTarget);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), markWidth));
    if (rect.height() > 0)
        painter.drawRoundedRect(rect.adjusted(markWidth, 1, -markWidth, -1), markWidth * 2, markWidth * 2);
    else
        painter.drawLine(rect.left(), rect.top(), rect.left() + rect.width(), rect.top());
}

} // namespace brindle::desktop
