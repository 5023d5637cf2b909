#pragma once

#include "desktop/windows/OutlineModel.hpp"
#include "platform/OutlineViewDataSource.hpp"

#include <QTreeView>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The widget of an outline: draws the rows of its model, and lets the data source decide what is dragged where. Thread: main.
///
/// By keyboard: the arrows go along the rows that can be selected, left and right close and open, Alt with up and down moves the selected
/// row among its siblings where the data source allows that, Return is a double click.
class OutlineTree : public QTreeView {
    Q_OBJECT

public:
    explicit OutlineTree(QWidget* parent = nullptr);

    OutlineModel& outline() { return _model; }
    void setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource);
    void setDelegate(std::weak_ptr<OutlineViewDelegate> delegate);
    void setVerticalMotionCanBeginDrag(bool canBegin) { _verticalMotionCanBeginDrag = canBegin; }
    void registerForDraggedType(std::string type);

    /// A place for a drop: on an item (`OutlineViewDataSource::dropOnItemIndex`), or before the child with that index.
    struct Drop {
        OutlineItem item;
        std::ptrdiff_t index = OutlineViewDataSource::dropOnItemIndex;
        friend bool operator==(const Drop&, const Drop&) = default;
    };
    /// What a drop at a point of the viewport would be proposed as: absent where the data source allows none there.
    std::optional<Drop> dropAt(const QPoint& point, const Pasteboard& pasteboard) const;

    std::function<void()> onSelectionChange;
    std::function<void(const QModelIndex&)> onPress;               ///< a row was clicked, or stands for one that was
    std::function<void(const QModelIndex&)> onDoubleAction;        ///< a double click or Return on a row
    std::function<void(const QModelIndex&, const QPoint&)> onMenu; ///< the menu of a row is wanted, at a point of the screen

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    Pasteboard pasteboard(const QMimeData& dragged) const;
    std::vector<Drop> candidates(const QPoint& point) const;
    bool allows(const Drop& drop, const Pasteboard& pasteboard) const;
    bool drag(const OutlineItem& item, const std::function<void(const Pasteboard&)>& run);
    void moveSelectedRow(int step);
    void setDropTarget(std::optional<Drop> drop);
    QRect indicatorRect(const Drop& drop) const;

    OutlineModel _model;
    std::weak_ptr<OutlineViewDataSource> _dataSource;
    std::vector<std::string> _draggedTypes;
    QPoint _pressedAt;
    QPersistentModelIndex _pressed;
    std::optional<Drop> _dropTarget; ///< of the drag that is over the outline
    bool _verticalMotionCanBeginDrag = true;
};

} // namespace brindle::desktop
